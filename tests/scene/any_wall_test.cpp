// What must hold of the picture of any wall: no text over another, each on the ground that it says
// it stands on, all numbers finite.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "base/translated_texts.hpp"
#include "scene/polygon.hpp"
#include "scene/scene.hpp"
#include "scene/shown_values.hpp"
#include "support/random_walls.hpp"
#include "support/sample_projects.hpp"
#include "support/scene_parts.hpp"
#include "support/wall_files.hpp"

namespace korven::scene {
namespace {

constexpr Misura misure[] = {{480, 340}, {900, 580}, {1600, 1000}, {120, 120}};

void finiti(const std::vector<Punto>& punti, const std::string& dove) {
    for (const Punto& p : punti)
        ASSERT_TRUE(std::isfinite(p.x) && std::isfinite(p.y) && std::fabs(p.x) < 1e7 &&
                    std::fabs(p.y) < 1e7)
            << dove;
}

struct Punti {
    const std::vector<Punto>& operator()(const Testo& t) const { return uno = {t.punto}; }
    template <class F>
    const std::vector<Punto>& operator()(const F& f) const {
        return f.punti;
    }
    mutable std::vector<Punto> uno;
};

void verifica(const Scena& s, const std::string& dove) {
    for (const Primitiva& p : s.primitive) finiti(std::visit(Punti(), p.figura), dove);
    const auto testi = test::figure<Testo>(s);
    for (std::size_t i = 0; i < testi.size(); ++i) {
        const Riquadro r = testi[i].riquadro();
        EXPECT_GE(r.sinistra, 0) << dove << testi[i].testo;
        EXPECT_LE(r.destra, s.larghezza) << dove << testi[i].testo;
        EXPECT_GE(r.alto, 0) << dove << testi[i].testo;
        EXPECT_LE(r.basso, s.altezza) << dove << testi[i].testo;
        EXPECT_TRUE(testi[i].piastra) << testi[i].testo;  // so its ground is what it says
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(r.tocca(testi[j].riquadro()))
                << dove << testi[i].testo << " | " << testi[j].testo;
    }
}

void verificaTutto(const project::DatiProgetto& dati, const std::string& nome) {
    const auto parete = live::calcola(dati, 30);
    for (const Misura& misura : misure)
        for (int fase = 0; fase <= std::min(dati.nFasi, 2); ++fase) {
            const auto curva = static_cast<live::Curva>((fase + dati.nStrati) % 4);
            verifica(scena(parete, {fase, curva}, misura, MisuraStimata()), nome + ": ");
        }
}

// Each text in its colour against the ground that it is painted on, in both palettes.
void verificaContrasto(const Scena& s) {
    for (const Testo& t : test::figure<Testo>(s))
        for (const Tavolozza tavolozza : {Tavolozza::chiara, Tavolozza::scura})
            EXPECT_GE(contrasto(colore(t.tinta, tavolozza), colore(t.fondo, tavolozza)), 4.5)
                << t.testo;
}

TEST(AnyWall, HasNoTextOverAnother) {
    test::MuriCasuali muri(1201);
    for (int i = 0; i < 60; ++i) verificaTutto(muri.prossimo(), std::to_string(i));
}

TEST(AnyWall, OfTheExamplesHasNoTextOverAnotherAndReadsWell) {
    for (const auto& file : test::muriIn(KORVEN_EXAMPLES)) {
        const auto dati = test::leggiMuro(file);
        verificaTutto(dati, file);
        for (const auto curva : {live::Curva::pressioni, live::Curva::momento})
            verificaContrasto(test::scenaDi(dati, {dati.nFasi, curva}));
    }
}

// Depths at the left of the curve: none gives way to a label.
void verificaAsse(const Scena& s, const std::string& dove) {
    std::size_t tacche = 0, numeri = 0;
    for (const auto& linea : test::figure<Linea>(s, Elemento::asse))
        tacche += linea.tinta.ruolo == Ruolo::griglia && linea.punti[0].y == linea.punti[1].y;
    const double bordo = test::figure<Linea>(s, Elemento::asse).at(0).punti[0].x;
    for (const auto& t : test::figure<Testo>(s, Elemento::asse))
        numeri += t.ancora == Ancora::destra && t.punto.x < bordo;
    EXPECT_EQ(numeri, tacche) << dove;
}

// A level has its depth on its own side of the wall.
void verificaAcque(const Scena& s, double monte, double valle, const std::string& dove) {
    const Riquadro muro = intorno(test::figure<Area>(s, Elemento::muro).at(0).punti);
    for (const auto& t : test::figure<Testo>(s, Elemento::acqua)) {
        const Riquadro r = t.riquadro();
        const bool sinistra = r.destra <= muro.sinistra, destra = r.sinistra >= muro.destra;
        EXPECT_TRUE(sinistra || destra) << dove << t.testo;
        if (monte == valle) continue;
        EXPECT_EQ(t.testo, quota(sinistra ? monte : valle)) << dove;
    }
}

class InTutteLeLingue : public ::testing::Test {
 protected:
    InTutteLeLingue() {
        const std::string cartella = KORVEN_PROGRAM_FOLDER;
        base::caricaTesti(cartella + "/texts01.txt", cartella + "/texts06.txt",
                          cartella + "/texts32.txt");
    }
    ~InTutteLeLingue() override { base::impostaLingua(1); }
};

TEST_F(InTutteLeLingue, ColonsStandApartInFrench) {
    base::impostaLingua(3);
    const std::string testo = descrizione(live::calcola(test::progettoSemplice(), 40), {});
    EXPECT_NE(testo.find("toutes les phases\u00A0: déplacement "), std::string::npos) << testo;
}

// At every size, stage, curve and in every language.
TEST_F(InTutteLeLingue, TheExamplesHaveAllTheirTexts) {
    constexpr Misura finestre[] = {{360, 340}, {600, 400}, {900, 580}, {1600, 1000}};
    for (const auto& file : test::muriIn(KORVEN_EXAMPLES)) {
        const auto dati = test::leggiMuro(file);
        const auto parete = live::calcola(dati, 30);
        for (int caso = 0; caso < 6 * 4 * (dati.nFasi + 1); ++caso) {
            const int lingua = caso % 6 + 1, curva = caso / 6 % 4, fase = caso / 24;
            base::impostaLingua(lingua);
            for (const Misura& misura : finestre) {
                const std::string dove = file + " " + std::to_string(fase) + " " +
                                         std::to_string(lingua) + " " +
                                         std::to_string(misura.altezza) + " ";
                const Scena s =
                    scena(parete, {fase, static_cast<live::Curva>(curva)}, misura, MisuraStimata());
                verifica(s, dove);
                verificaAsse(s, dove);
                verificaAcque(s, dati.faldaMonte, dati.faldaFase[fase > 0 ? fase : dati.nFasi],
                              dove);
                for (int j = 1; j <= dati.nTiranti; ++j)
                    EXPECT_FALSE(test::testi(s, Elemento::tirante, j).empty()) << dove;
                for (int i = 1; i <= dati.nStrati && misura.altezza > 500; ++i)
                    EXPECT_FALSE(test::testi(s, Elemento::strato, i).empty()) << dove << i;
            }
        }
    }
}

project::DatiProgetto centoStrati() {
    auto muro = test::muro().lungo(20);
    for (int i = 1; i <= 100; ++i)
        muro.strato({.fondo = 0.25 * i + (i >= 50 ? 1 : 0),
                     .descrizione = "10" + std::to_string(i % 10) + "C" +
                                    std::to_string(1 + i % 21) + " Strato numero " +
                                    std::to_string(i)});
    for (int j = 1; j <= 20; ++j) muro.tirante(0.4 * j, 500, 5, j % 2);
    for (int k = 1; k <= 20; ++k) muro.fase({.scavo = 0.5 * k, .tiranti = 1.0 * k});
    return muro.dati();
}

TEST(AnyWall, OfAHundredLayersNamesTheThickestThatHaveRoom) {
    const auto dati = centoStrati();
    verificaTutto(dati, "100");
    const Scena s = test::scenaDi(dati, {}, {900, 580});
    std::set<int> nominati;
    for (const Primitiva& p : s.primitive)
        if (p.elemento == Elemento::strato && std::holds_alternative<Testo>(p.figura))
            nominati.insert(p.numero);
    EXPECT_GT(nominati.size(), 5U);
    EXPECT_LT(nominati.size(), 60U);
    EXPECT_TRUE(nominati.contains(50));  // the one of 1.25 m
    // None far from its layer: a leader falls by less than a row.
    for (const Primitiva& p : s.primitive)
        if (const auto* linea = std::get_if<Linea>(&p.figura);
            linea != nullptr && linea->tinta.ruolo == Ruolo::testoTenue && p.numero > 0 &&
            p.elemento == Elemento::strato) {
            EXPECT_LE(std::fabs(linea->punti[1].y - linea->punti[0].y), s.corpo);
            EXPECT_TRUE(nominati.contains(p.numero));
        }
    verificaContrasto(s);
}

TEST(AnyWall, HasAPictureAtTheExtremes) {
    using test::muro;
    const auto nulla = test::progettoVuoto();
    verificaTutto(nulla, "new project");
    verificaTutto(muro().lungo(0.5).fase({.scavo = 0.1}).dati(), "0.5 m");
    verificaTutto(muro().lungo(60).strato({.fondo = 80}).fase({.scavo = 20}).dati(), "60 m");
    verificaTutto(muro().fase({.scavo = 0}).dati(), "no excavation");
    verificaTutto(muro().falda(-3).fase({.scavo = 2, .falda = -1}).dati(), "open water");
    verificaTutto(muro().fase({.scavo = 30}).dati(), "dug below the toe");
    auto senza = muro().dati();
    senza.nStrati = 0;
    verificaTutto(senza, "no layers");
}

TEST(AnyWall, LeavesOutWhatIsNoNumber) {
    for (const double v : {std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::infinity(), -1e300, 1e300}) {
        auto dati = test::progettoSemplice();
        for (double project::DatiProgetto::*campo :
             {&project::DatiProgetto::lunghezzaParatia, &project::DatiProgetto::faldaMonte,
              &project::DatiProgetto::inclinazioneMonte, &project::DatiProgetto::sovraccMonte,
              &project::DatiProgetto::momentoTesta, &project::DatiProgetto::rigidezzaEJ}) {
            auto guasto = dati;
            guasto.*campo = v;
            live::PareteViva parete;
            parete.dati = guasto;
            for (const Misura& misura : misure)
                verifica(scena(parete, {1}, misura, MisuraStimata()), std::to_string(v));
        }
        dati.profStrato[1] = dati.profTirante[1] = dati.profFase[1] = dati.faldaFase[1] =
            dati.sovraccFase[1] = dati.tirantiFase[1] = v;
        dati.sezione.tipoDiaframma = true;
        dati.sezione.spessoreDiaframma = v;
        live::PareteViva parete;
        parete.dati = dati;
        verifica(scena(parete, {1}, {900, 580}, MisuraStimata()), std::to_string(v));
    }
}

}  // namespace
}  // namespace korven::scene
