#include "safety/shortest_wall.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "equilibrium/staged_equilibrium.hpp"
#include "support/random_walls.hpp"

namespace korven::safety {
namespace {

using project::DatiProgetto;

// Hinged at the top, 3 m dug, Rankine: the active moment ka gamma L^3 / 3 equals the passive one,
// kp gamma (L - 3)^2 / 2 x (L - (L - 3) / 3). The mesh of 200 segments is within 2 cm of that.
TEST(LunghezzaMinima, IsThatOfTheClosedFormForAHingedWall) {
    const auto dati = test::muro()
                          .lungo(8)
                          .strato({.fondo = 30, .gammaN = 1.8, .phi = 30})
                          .fase({.scavo = 3})
                          .con(&DatiProgetto::vincoloTesta, 2)
                          .con(&DatiProgetto::metodoSpinte, 2)
                          .dati();
    double cade = 3, sta = 8;
    while (sta - cade > 1e-9) {
        const double L = (cade + sta) / 2, t = L - 3;
        ((1.0 / 3) * L * L * L / 3 < 3 * t * t / 2 * (L - t / 3) ? sta : cade) = L;
    }
    const LunghezzaMinima l = lunghezzaMinima(dati, 200);
    EXPECT_EQ(l.esito, EsitoLunghezza::trovata);
    EXPECT_NEAR(l.lunghezza.value_or(0), sta, 0.03);
}

// What it finds stands, also with every length within two steps of the mesh, and a hundredth less
// does not.
TEST(LunghezzaMinima, DividesWhatStandsFromWhatDoesNot) {
    test::MuriCasuali muri(3);
    int trovate = 0, cresciute = 0;
    for (int m = 0; m < 60; ++m) {
        DatiProgetto dati = muri.prossimo();
        dati.vincoloPiede = 1;
        const auto originale = dati.lunghezzaParatia;
        const LunghezzaMinima l = lunghezzaMinima(dati, 50);
        if (l.esito != EsitoLunghezza::trovata) continue;
        ++trovate;
        if (*l.lunghezza > originale) ++cresciute;
        const auto sta = [&](double metri) {
            dati.lunghezzaParatia = metri;
            const auto fasi = equilibrium::calcolaEquilibrio(dati, 50);
            return fasi.back().esito != equilibrium::EsitoFase::meccanismo &&
                   fasi.back().esito != equilibrium::EsitoFase::nonDefinito;
        };
        const long passi = std::lround(*l.lunghezza / passoLunghezza);
        EXPECT_FALSE(sta(static_cast<double>(passi - 1) * passoLunghezza)) << m;
        for (long p = passi; p <= passi + std::lround(2 * *l.lunghezza / 50 / passoLunghezza); ++p)
            EXPECT_TRUE(sta(static_cast<double>(p) * passoLunghezza)) << m;
    }
    EXPECT_GT(trovate, 15);
    EXPECT_GT(cresciute, 0);
}

TEST(LunghezzaMinima, IsNoneOfARestrainedToe) {
    for (const double vincolo : {2.0, 3.0}) {
        const auto dati = test::muro().con(&DatiProgetto::vincoloPiede, vincolo).dati();
        const LunghezzaMinima l = lunghezzaMinima(dati, 50);
        EXPECT_EQ(l.esito, EsitoLunghezza::vincolata);
        EXPECT_FALSE(l.lunghezza);
    }
}

TEST(LunghezzaMinima, IsNoneWhereNoLengthHelps) {
    const auto dati = test::muro()
                          .strato({.phi = 30, .ks = 1500})
                          .fase({.scavo = 3})
                          .con(&DatiProgetto::forzaTesta, 1e5)
                          .dati();
    EXPECT_EQ(lunghezzaMinima(dati, 50).esito, EsitoLunghezza::mai);
}

// Propped twice in dry clay that stands alone: not even embedment is needed.
TEST(LunghezzaMinima, IsTheDeepestExcavationWhereTheWallNeedsNoSoilInFront) {
    const auto dati = test::muro()
                          .lungo(9)
                          .strato({.gammaN = 1.8, .phi = 30})
                          .tirante(1, 1000, 0, 1)
                          .tirante(3, 1000, 0, 1)
                          .fase({.scavo = 4, .tiranti = 2})
                          .dati();
    const LunghezzaMinima l = lunghezzaMinima(dati, 50);
    EXPECT_EQ(l.esito, EsitoLunghezza::sempre);
    EXPECT_DOUBLE_EQ(l.lunghezza.value_or(0), 4);
}

}  // namespace
}  // namespace korven::safety
