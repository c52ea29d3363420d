#include "safety/passive_use.hpp"

#include <gtest/gtest.h>

#include "support/random_walls.hpp"
#include "support/stage_problems.hpp"

namespace korven::safety {
namespace {

using equilibrium::FaseEquilibrio;

// Five nodes, 1 m apart, dug to 2 m: limits 2, 4 and 6 (half weight at the toe), of which 2, 4 and
// 3 are used: (2 + 4 + 1.5) / (2 + 4 + 3) = 0.8333.
TEST(UsoPassiva, IsPressureOverLimitBelowTheExcavation) {
    auto p = test::pareteNuda(5, 1);
    FaseEquilibrio fase;
    fase.valle = {0, 0, -2, -4, -3};
    fase.stati.resize(5);
    for (const std::size_t i : {2u, 3u}) fase.stati[i].valle = analysis::StatoLato::passivo;
    for (std::size_t i = 2; i < 5; ++i) p.nodi[i].valle.minimo = -2 * (static_cast<double>(i) - 1);
    const UsoPassiva uso = usoPassiva(p, fase, 2);
    ASSERT_TRUE(uso.quota);
    EXPECT_NEAR(*uso.quota, 7.5 / 9, 1e-15);
    ASSERT_EQ(uso.alLimite.size(), 1u);
    EXPECT_EQ(uso.alLimite[0].da, 2);
    EXPECT_EQ(uso.alLimite[0].a, 3);
}

TEST(UsoPassiva, TellsEveryStretchAtTheLimit) {
    auto p = test::pareteNuda(5, 1);
    FaseEquilibrio fase;
    fase.valle = {-1, -1, -1, -1, -1};
    fase.stati.resize(5);
    for (const std::size_t i : {0u, 2u, 4u}) fase.stati[i].valle = analysis::StatoLato::passivo;
    EXPECT_EQ(usoPassiva(p, fase, 0).alLimite.size(), 3u);
    EXPECT_EQ(usoPassiva(p, fase, 1).alLimite.size(), 2u);
}

TEST(UsoPassiva, IsNoneBelowTheToe) {
    const auto p = test::pareteNuda(5, 1);
    FaseEquilibrio fase;
    fase.valle.resize(5);
    fase.stati.resize(5);
    EXPECT_FALSE(usoPassiva(p, fase, 5).quota);
}

TEST(UsoPassiva, IsNoneOfSoilThatPulls) {
    auto p = test::pareteNuda(5, 1);
    FaseEquilibrio fase;
    fase.valle = {0, 0, 3, -1, 0};
    fase.stati.resize(5);
    for (auto& nodo : p.nodi) nodo.valle.minimo = -1;
    EXPECT_FALSE(usoPassiva(p, fase, 0).quota);
}

TEST(UsoPassiva, LiesBetweenNothingAndAll) {
    test::MuriCasuali muri(31);
    for (int m = 0; m < 100; ++m) {
        const auto dati = muri.prossimo();
        equilibrium::EquilibrioParete parete(dati, 50);
        for (int k = 1; k <= dati.nFasi; ++k) {
            const auto& fase = parete.calcola(k);
            if (fase.esito != equilibrium::EsitoFase::equilibrio) break;
            const auto uso = usoPassiva(parete.problema(), fase, dati.profFase[k]);
            if (!uso.quota) continue;
            EXPECT_GE(*uso.quota, 0) << m;
            EXPECT_LE(*uso.quota, 1) << m;
        }
    }
}

}  // namespace
}  // namespace korven::safety
