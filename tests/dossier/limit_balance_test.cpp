#include "dossier/limit_balance.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "dossier/dossier.hpp"
#include "support/sample_projects.hpp"
#include "support/stage_problems.hpp"

namespace korven::dossier {
namespace {

using equilibrium::Meccanismo;

const ParteAlLimite* parte(const BilancioLimite& b, AzioneLimite cosa, bool sotto = true) {
    for (const ParteAlLimite& p : b.parti)
        if (p.cosa == cosa && p.sotto == sotto) return &p;
    return nullptr;
}

// 10 m, eleven nodes, a hinge at the top about which the toe goes out: 4 t/m2 push, 2 t/m2 hold.
// Without the node of the hinge nine nodes of 1 m and the last of half a metre carry 9.5 times the
// pressure; about the hinge that is 50 m2 of it.
TEST(BilancioLimiteTest, HasWhatPushesAndWhatResistsAboutAHinge) {
    auto p = test::pareteNuda(11, 1);
    p.nodi.front().vincolato = true;
    for (auto& nodo : p.nodi) {
        nodo.monte = {6.5, -100, 4, 9};
        nodo.valle = {-1.25, -100, -2, -0.5};
    }
    const Meccanismo moto{false, 0, 1, 100};
    const BilancioLimite b = bilancioLimite(p, moto, 3);
    EXPECT_EQ(b.fase, 3);
    const auto* spinge = parte(b, AzioneLimite::monte);
    const auto* resiste = parte(b, AzioneLimite::valle);
    ASSERT_TRUE(spinge && resiste);
    EXPECT_NEAR(spinge->forza, 4 * 9.5, 1e-12);
    EXPECT_NEAR(spinge->spinta, 4 * 50, 1e-12);
    EXPECT_NEAR(resiste->forza, -2 * 9.5, 1e-12);
    EXPECT_NEAR(resiste->spinta, -2 * 50, 1e-12);
    EXPECT_NEAR(b.mancante, 100, 1e-12);
    // 10 t at the toe make the moment up; the hinge carries what is left of 19 t.
    EXPECT_EQ(b.zRisultante, 10);
    EXPECT_NEAR(b.forzaRisultante, 10, 1e-12);
    EXPECT_NEAR(b.perno, 10 - 19, 1e-12);
    ASSERT_EQ(b.nodi.size(), 11U);
    EXPECT_EQ(b.nodi[0].forza, 0);
    EXPECT_EQ(b.nodi[4].monte, 4);
    EXPECT_EQ(b.nodi[4].statoMonte, LimiteTerreno::attivo);
    EXPECT_EQ(b.nodi[4].statoValle, LimiteTerreno::passivo);
    EXPECT_NEAR(b.nodi[10].forza, 0.5 * (4 - 2), 1e-12);
}

// About the middle the part above goes uphill: there the retained side is passive. A moment of 7 at
// the head pushes a turn away from the excavation, so that it resists this one.
TEST(BilancioLimiteTest, ChangesTheLimitsAboveThePointThatStays) {
    auto p = test::pareteNuda(11, 1);
    p.M = 7;
    for (auto& nodo : p.nodi) nodo.monte = {6.5, -100, 4, 9};
    const BilancioLimite b = bilancioLimite(p, Meccanismo{false, 5, 1, 0}, 1);
    EXPECT_EQ(b.nodi[2].statoMonte, LimiteTerreno::passivo);
    EXPECT_EQ(b.nodi[2].monte, 9);
    EXPECT_EQ(b.nodi[5].statoMonte, LimiteTerreno::nessuno);
    EXPECT_EQ(b.nodi[5].forza, 0);
    EXPECT_EQ(b.nodi[8].statoMonte, LimiteTerreno::attivo);
    // Half a metre at 5 m, and one metre at each of 4, 3, 2, 1 m: 12.5 m2 a side.
    EXPECT_NEAR(parte(b, AzioneLimite::monte, false)->spinta, -9 * 12.5, 1e-12);
    EXPECT_NEAR(parte(b, AzioneLimite::monte, true)->spinta, 4 * 12.5, 1e-12);
    EXPECT_NEAR(parte(b, AzioneLimite::momentoTesta, false)->spinta, -7, 1e-12);
    EXPECT_NEAR(b.mancante, -9 * 12.5 + 4 * 12.5 - 7, 1e-12);
}

TEST(BilancioLimiteTest, SumsTheForcesOfATranslation) {
    auto p = test::pareteNuda(11, 1);
    p.costante = 0.3;
    p.H = -1;
    const BilancioLimite b = bilancioLimite(p, Meccanismo{true, 0, 1, 2}, 1);
    EXPECT_NEAR(parte(b, AzioneLimite::costante)->spinta, 3, 1e-12);
    EXPECT_NEAR(parte(b, AzioneLimite::forzaTesta)->spinta, -1, 1e-12);
    EXPECT_NEAR(b.mancante, 2, 1e-12);
}

// The force that is missing least and the reaction of the point that stays are an equilibrium at
// the limit: the reaction is one that the soil of its node can give.
TEST(BilancioLimiteTest, AsksOfTheNodeThatStaysNoMoreThanItsSoilGives) {
    int visti = 0;
    for (double scavo = 7; scavo < 11.9; scavo += 0.13) {
        auto dati = test::progettoSemplice();
        dati.tirantiFase[2] = 0;
        dati.profFase[2] = scavo;
        const int nSeg = 60;
        const auto b = bilancioLimite(dati, nSeg, 2);
        if (!b || b->moto.traslazione) continue;
        equilibrium::EquilibrioParete parete(dati, nSeg);
        for (int k = 1; k <= 2; ++k) (void)parete.calcola(k);
        const equilibrium::ProblemaFase& problema = parete.problema();
        const auto i = static_cast<std::size_t>(std::lround(b->moto.profondita / problema.h));
        const equilibrium::NodoFase& nodo = problema.nodi[i];
        const double carico = nodo.acqua + problema.costante;
        const double uno = nodo.peso * (carico + nodo.monte.limite(1) + nodo.valle.limite(1));
        const double altro = nodo.peso * (carico + nodo.monte.limite(-1) + nodo.valle.limite(-1));
        EXPECT_GE(b->perno, std::min(uno, altro) - 1e-9) << scavo;
        EXPECT_LE(b->perno, std::max(uno, altro) + 1e-9) << scavo;
        ++visti;
    }
    EXPECT_GT(visti, 5);
}

// What the verdict says is missing is what the parts sum up to.
TEST(BilancioLimiteTest, OfADossierSumsToWhatTheVerdictMisses) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    dati.forzaTesta = 1.5;
    dati.momentoTesta = -2;
    const Fascicolo f = fascicolo(dati);
    ASSERT_TRUE(f.limite);
    EXPECT_EQ(f.limite->fase, 2);
    const double mancante = f.parete.perche->moto->mancante;
    EXPECT_GT(mancante, 0);
    EXPECT_NEAR(f.limite->mancante, mancante, 1e-9 * mancante);
    EXPECT_FALSE(fascicolo(test::progettoSemplice()).limite);
}

// An anchor of 3 t with a cosine of one, at 2 m, and one that is slack below it; a third stands at
// a node that a restraint holds, and a fourth out of the wall.
TEST(BilancioLimiteTest, HasTheAnchorsThatPullWithTheirPrestressAlone) {
    auto p = test::pareteNuda(11, 1);
    const auto tirante = [](int nodo, double rigidezza, double pretensione) {
        equilibrium::TiranteFase t;
        t.nodo = nodo;
        t.rigidezza = rigidezza;
        t.pretensione = pretensione;
        return t;
    };
    p.tiranti = {tirante(2, 0, 3), tirante(4, 500, 3), tirante(0, 0, 3), tirante(-1, 0, 3)};
    p.nodi[0].vincolato = true;
    const BilancioLimite b = bilancioLimite(p, Meccanismo{false, 0, 1, 100}, 1);
    const auto* suo = parte(b, AzioneLimite::tirante);
    ASSERT_TRUE(suo);
    EXPECT_EQ(suo->tirante, 1);
    EXPECT_NEAR(suo->forza, -3, 1e-12);
    EXPECT_NEAR(suo->spinta, -3 * 2, 1e-12);
    EXPECT_EQ(std::count_if(b.parti.begin(), b.parti.end(),
                            [](const auto& una) { return una.cosa == AzioneLimite::tirante; }),
              1);
}

}  // namespace
}  // namespace korven::dossier
