#include "dossier/balance.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "live/wall.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::dossier {
namespace {

using project::DatiProgetto;

BilancioFase unico(const DatiProgetto& dati, int nSeg) { return bilanci(dati, nSeg, 1).at(0); }

void chiude(const BilancioFase& b, double quota, const std::string& di) {
    EXPECT_LE(std::fabs(b.resto.forza), quota * b.massima().forza) << di << " fase " << b.fase;
    EXPECT_LE(std::fabs(b.resto.momento), quota * b.massima().momento) << di << " fase " << b.fase;
}

// Water to the top of one side alone. The pressure of a node stands for the step around it, half a
// step at the ends: of a line from 0 to 12 t/m2 over 12 m that is the whole triangle of force,
// 12 x 12 / 2, and a moment of L^3 / 3 + L h^2 / 6 = 576 + 0.5 with steps of 0.5 m.
TEST(Bilancio, HasTheWaterOfAFloodedSideByHand) {
    auto dati = test::muroElastico(50);
    dati.lunghezzaParatia = 12;
    dati.faldaMonte = 0;
    dati.faldaFase[1] = 12;
    const BilancioFase b = unico(dati, 24);
    EXPECT_NEAR(b.acqua.forza, 72, 1e-12);
    EXPECT_NEAR(b.acqua.momento, 576.5, 1e-11);
    // Both sides of the soil press alike but for what the wall's movement changes.
    EXPECT_NEAR(b.monte.forza + b.valle.forza, -72, 1e-6);
    chiude(b, 1e-9, "acqua");
}

// No soil that acts: a beam on two hinges under its constant pressure and what acts at its head.
TEST(Bilancio, HasTheReactionsOfTwoHingesByStatics) {
    auto dati = test::muroNudo();
    dati.vincoloTesta = 2;
    dati.vincoloPiede = 2;
    dati.pressioneOrizz = 3;
    dati.forzaTesta = 7;
    dati.momentoTesta = 11;
    const BilancioFase b = unico(dati, 20);
    EXPECT_EQ(b.testa.forza, 7);
    EXPECT_EQ(b.testa.momento, -11);
    EXPECT_NEAR(b.costante.forza, 30, 1e-12);
    EXPECT_NEAR(b.costante.momento, 150, 1e-12);
    EXPECT_NEAR(b.cerniera.forza + b.piede.forza, -37, 1e-6);
    EXPECT_NEAR(b.cerniera.momento, 0, 1e-12);
    EXPECT_NEAR(b.piede.momento, -139, 1e-6);  // 150 - 11, by the toe alone
    EXPECT_EQ(b.incastro.momento, 0);
    EXPECT_EQ(b.oltrePiede.forza, 0);
    chiude(b, 1e-8, "cerniere");
}

TEST(Bilancio, TurnsItsSignWithTheLoads) {
    auto dati = test::muroElastico(300);
    dati.forzaTesta = 4;
    dati.momentoTesta = -9;
    const BilancioFase b = unico(dati, 50);
    dati.forzaTesta = -4;
    dati.momentoTesta = 9;
    const BilancioFase opposto = unico(dati, 50);
    const auto netto = [](const BilancioFase& uno) {
        return Risultante{uno.monte.forza + uno.valle.forza, uno.monte.momento + uno.valle.momento};
    };
    EXPECT_EQ(b.testa.forza, -opposto.testa.forza);
    EXPECT_NEAR(netto(b).forza, -4, 1e-6);
    EXPECT_NEAR(netto(b).momento, -9, 1e-5);
    EXPECT_NEAR(netto(b).forza, -netto(opposto).forza, 1e-6);
    EXPECT_NEAR(netto(b).momento, -netto(opposto).momento, 1e-5);
}

TEST(Bilancio, HasEachAnchorWithItsForceAtItsNode) {
    const auto dati = test::progettoSemplice();
    const auto parete = live::calcola(dati, 40);
    const auto tutti = bilanci(dati, 40, 2);
    ASSERT_EQ(tutti.size(), 2U);
    EXPECT_TRUE(tutti[0].tiranti.empty());
    ASSERT_EQ(tutti[1].tiranti.size(), 1U);
    EXPECT_EQ(tutti[1].tiranti[0].forza, -parete.fase(2)->tiri[0]);
    EXPECT_NEAR(tutti[1].tiranti[0].momento, -1.5 * parete.fase(2)->tiri[0], 1e-12);
}

TEST(Bilancio, LeavesNothingButRoundingOfAnyWallThatStands) {
    int fasi = 0;
    for (const char* cartella : {KORVEN_EXAMPLES, KORVEN_WALLS})
        for (const std::string& file : test::muriIn(cartella)) {
            const auto dati = test::leggiMuro(file);
            for (const int nSeg : {20, 50, 200}) {
                const auto parete = live::calcola(dati, nSeg);
                for (const auto& b : bilanci(parete.dati, nSeg, parete.fasiInEquilibrio())) {
                    chiude(b, 1e-9, file + " " + std::to_string(nSeg));
                    ++fasi;
                }
            }
        }
    EXPECT_GT(fasi, 100);
}

}  // namespace
}  // namespace korven::dossier
