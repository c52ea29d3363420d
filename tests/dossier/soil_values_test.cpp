#include "dossier/soil_values.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <variant>

#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::dossier {
namespace {

using project::DatiProgetto;

// By hand at 6 m, in the second layer (phi 34, c 0.5): surcharge 1, 3 m of 1.8, 1 m of 2, 2 m of
// 2.1, water from 3 m; tan 28 = 0.531709, tan 62 = 1.880726.
TEST(ValoriTerreno, HasTheRetainedSideByHand) {
    const auto terreno = valoriTerreno(live::calcola(test::progettoSemplice(), 40));
    const LatoTerreno& nodo = terreno.monte.at(20);
    EXPECT_NEAR(nodo.totale.value(), 12.6, 1e-12);
    EXPECT_NEAR(nodo.acqua.value(), 3, 1e-12);
    EXPECT_NEAR(nodo.sigma, 9.6, 1e-12);
    EXPECT_NEAR(nodo.riposo, 9.6 * (1 - 0.5591929), 1e-6);
    EXPECT_NEAR(nodo.attivo, 9.6 * 0.2827149 - 0.5317094, 1e-6);
    EXPECT_NEAR(nodo.passivo, 9.6 * 3.5371320 + 1.8807265, 1e-6);
    EXPECT_NEAR(nodo.ks, 3000, 1e-9);
}

// Stage 2 is dug to 5 m with the water there: 1 m of 2.1 less 1 of water.
TEST(ValoriTerreno, HasTheExcavatedSideByHand) {
    const auto terreno = valoriTerreno(live::calcola(test::progettoSemplice(), 40));
    ASSERT_EQ(terreno.fasi.size(), 2U);
    const TerrenoFase& fase = terreno.fasi[1];
    EXPECT_EQ(fase.primo, 17U);  // at 5.1 m
    const LatoTerreno& nodo = fase.valle.at(20);
    EXPECT_NEAR(nodo.totale.value(), 2.1, 1e-12);
    EXPECT_NEAR(nodo.acqua.value(), 1, 1e-12);
    EXPECT_NEAR(nodo.riposo, -1.1 * (1 - 0.5591929), 1e-6);
    EXPECT_EQ(nodo.attivo, 0);  // cohesion is more than the soil's own weight
    EXPECT_NEAR(nodo.passivo, -1.1 * 3.5371320 - 1.8807265, 1e-6);
    EXPECT_EQ(fase.valle.at(16).passivo, 0);
}

TEST(ValoriTerreno, HasNoStressOfItsOwnWhereTheExcavatedSideIsHeldEqual) {
    DatiProgetto dati = test::progettoSemplice();
    dati.modoSpinte = project::valore(project::ModoSpinte::comeMonte);
    const auto terreno = valoriTerreno(live::calcola(dati, 40));
    const LatoTerreno& nodo = terreno.fasi[1].valle.at(20);
    EXPECT_FALSE(nodo.totale);
    EXPECT_FALSE(nodo.acqua);
    EXPECT_EQ(nodo.sigma, terreno.monte.at(20).sigma);
}

double fraILimiti(const LatoTerreno& lato, double y) {
    const auto [minimo, massimo] = std::minmax(lato.attivo, lato.passivo);
    return std::clamp(lato.riposo - lato.ks * y, minimo, massimo);
}

// What is told of the soil is what the equilibrium was found with.
void verificaPressioni(const live::PareteViva& parete, const std::string& di) {
    const auto terreno = valoriTerreno(parete);
    const auto vincoli = analysis::vincoli(parete.dati);
    for (const TerrenoFase& fase : terreno.fasi) {
        const auto* e = parete.fase(fase.fase);
        if (e == nullptr) continue;
        for (std::size_t i = 0; i < e->y.size(); ++i) {
            const bool vincolato =
                (i == 0 && vincoli.cernieraTesta) || (i + 1 == e->y.size() && vincoli.bloccoPiede);
            const double y = vincolato ? 0 : e->y[i];
            EXPECT_NEAR(fraILimiti(terreno.monte[i], y), e->monte[i], 1e-9) << di << i;
            EXPECT_NEAR(fraILimiti(fase.valle[i], y), e->valle[i], 1e-9) << di << i;
        }
    }
}

TEST(ValoriTerreno, GivesThePressuresOfEveryStandingWall) {
    int muri = 0;
    for (const std::string cartella : {KORVEN_EXAMPLES, KORVEN_WALLS})
        for (const std::string& muro : test::muriIn(cartella)) {
            const auto parete = live::calcola(test::leggiMuro(muro), 40);
            if (parete.sta()) ++muri;
            verificaPressioni(parete, muro);
        }
    EXPECT_GE(muri, 5);
}

TEST(ValoriTerreno, IsEmptyWhereNothingIsComputed) {
    const auto terreno = valoriTerreno(live::calcola(test::progettoVuoto()));
    EXPECT_TRUE(terreno.strati.empty());
    EXPECT_TRUE(terreno.monte.empty());
    EXPECT_TRUE(terreno.fasi.empty());
}

TEST(ValoriRigidezza, HasTheStepsOfADefinedSectionAlone) {
    DatiProgetto dati = test::progettoSemplice();
    EXPECT_FALSE(valoriRigidezza(dati).offerta);
    dati.sezione = structure::diaframmaSimmetrico();
    const ValoriRigidezza valori = valoriRigidezza(dati);
    const auto& passi = std::get<structure::EJDiaframma>(valori.passi);
    EXPECT_EQ(passi.EJ, structure::calcolaEJ(dati.sezione));
    EXPECT_EQ(valori.offerta, std::floor(passi.EJ / 1e10));
}

}  // namespace
}  // namespace korven::dossier
