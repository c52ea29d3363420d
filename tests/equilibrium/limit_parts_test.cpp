#include "equilibrium/limit_parts.hpp"

#include <gtest/gtest.h>

#include "support/stage_problems.hpp"

namespace korven::equilibrium {
namespace {

// Eleven nodes along 10 m, soil behind all of them and in front from 4 m down. About 6 m the lower
// part goes towards the excavation.
TEST(PartiAlLimite, AreThoseOfTheSideThatEachPartMovesTo) {
    auto p = test::pareteNuda(11, 1);
    for (int i = 0; i < 11; ++i) {
        auto& nodo = p.nodi[static_cast<std::size_t>(i)];
        nodo.monte = {2, -100, 1, 5};
        if (i >= 4) nodo.valle = {-2, -100, -5, -1};
    }
    p.tiranti = {{1, 500, 0, 0, false, 1}, {2, 500, 0, 0, true, 1}, {8, 500, 0, 0, false, 1}};
    const auto parti = partiAlLimite(p, {false, 6, 1, 3});
    using Tratti = std::vector<Tratto>;
    EXPECT_EQ(parti.monteAttivo, (Tratti{{7, 10}}));
    EXPECT_EQ(parti.montePassivo, (Tratti{{0, 5}}));
    EXPECT_EQ(parti.vallePassivo, (Tratti{{7, 10}}));
    EXPECT_EQ(parti.valleAttivo, (Tratti{{4, 5}}));
    EXPECT_EQ(parti.tirantiLenti, std::vector<int>{1});
}

TEST(PartiAlLimite, LeaveOutWhatHasNoSoilOrNoModulusOrIsRestrained) {
    auto p = test::pareteNuda(5, 1);
    p.nodi[0].monte = p.nodi[2].monte = p.nodi[4].monte = {2, -100, 1, 5};
    p.nodi[1].monte = {2, 0, 1, 5};
    p.nodi[2].vincolato = true;
    const auto parti = partiAlLimite(p, {true, 0, 1, 0});
    EXPECT_EQ(parti.monteAttivo, (std::vector<Tratto>{{0, 0}, {4, 4}}));
    EXPECT_TRUE(parti.vallePassivo.empty());
}

}  // namespace
}  // namespace korven::equilibrium
