#include "equilibrium/stage_problem.hpp"

#include <gtest/gtest.h>

#include "support/stage_problems.hpp"

namespace korven::equilibrium {
namespace {

// At rest 2, modulus 100, limits 1 and 5: the active one at 1 cm, the passive one at -3 cm.
TEST(LatoNodo, FallsWithTheDisplacementBetweenItsLimits) {
    const LatoNodo lato{2, -100, 1, 5};
    EXPECT_DOUBLE_EQ(lato.pressione(0), 2);
    EXPECT_DOUBLE_EQ(lato.pressione(0.005), 1.5);
    EXPECT_DOUBLE_EQ(lato.pressione(0.02), 1);
    EXPECT_DOUBLE_EQ(lato.pressione(-0.1), 5);
    EXPECT_DOUBLE_EQ(lato.rigidezza(0.005), 100);
    EXPECT_DOUBLE_EQ(lato.rigidezza(0.02), 0);
    EXPECT_DOUBLE_EQ(lato.limite(1), 1);
    EXPECT_DOUBLE_EQ(lato.limite(-1), 5);
}

TEST(LatoNodo, KeepsItsPressureWithoutAModulus) {
    const LatoNodo lato{2, 0, 1, 5};
    EXPECT_EQ(lato.limite(1), 2);
    EXPECT_EQ(lato.limite(-1), 2);
    const LatoNodo oltre{7, 0, 1, 5};
    EXPECT_EQ(oltre.limite(1), 5);
}

TEST(TiranteFase, IsSlackInCompressionUnlessItIsAProp) {
    TiranteFase t{0, 500, 3, 0.01, false, 1};
    EXPECT_DOUBLE_EQ(t.tiro(0.02), 8);
    EXPECT_DOUBLE_EQ(t.tiro(0), 0);
    EXPECT_EQ(t.rigidezzaIn(0), 0);
    t.compressione = true;
    EXPECT_DOUBLE_EQ(t.tiro(0), -2);
    EXPECT_EQ(t.rigidezzaIn(0), 500);
}

TEST(DatoInstabile, FindsWhatMakesTheEnergyNotConvex) {
    auto p = test::pareteNuda(5, 1);
    for (auto& nodo : p.nodi) nodo.monte = {2, -100, 1, 5};
    EXPECT_EQ(datoInstabile(p).che, Instabile::no);

    p.nodi[2].valle = {-2, 50, -5, -1};
    EXPECT_EQ(datoInstabile(p).che, Instabile::modulo);
    EXPECT_EQ(datoInstabile(p).nodo, 2);
    EXPECT_FALSE(datoInstabile(p).monte);
    EXPECT_EQ(datoInstabile(p).valore, 50);
    EXPECT_EQ(datoInstabile(p).profondita, 2);
    p.nodi[2].vincolato = true;  // its soil reacts no more
    EXPECT_EQ(datoInstabile(p).che, Instabile::no);

    p.nodi[1].monte = {2, -100, 5, 1};
    EXPECT_EQ(datoInstabile(p).che, Instabile::limiti);
    EXPECT_TRUE(datoInstabile(p).monte);
    EXPECT_EQ(datoInstabile(p).valore, 5);
    EXPECT_EQ(datoInstabile(p).passivo, 1);

    p.tiranti = {{0, 10, 0, 0, false, 1}, {1, -10, 0, 0, false, 1}};
    EXPECT_EQ(datoInstabile(p).che, Instabile::tirante);
    EXPECT_EQ(datoInstabile(p).tirante, 2);
    EXPECT_EQ(datoInstabile(p).valore, -10);

    p.EJ = -1;
    EXPECT_EQ(datoInstabile(p).che, Instabile::parete);
    EXPECT_EQ(datoInstabile(p).valore, -1);
}

// Of the excavated side the passive limit is the lowest.
TEST(DatoInstabile, TellsTheLimitsOfEachSideByTheirNames) {
    auto p = test::pareteNuda(5, 1);
    p.nodi[3].valle = {-2, -100, -1, -5};
    EXPECT_EQ(datoInstabile(p).valore, -5);
    EXPECT_EQ(datoInstabile(p).passivo, -1);
}

TEST(DatoInstabile, MindsNoLimitsThatAreOneNumberAndNoneWithoutAModulus) {
    auto p = test::pareteNuda(5, 1);
    p.nodi[0].monte = {2, 100, 3, 3};
    p.nodi[1].monte = {2, 0, 5, 1};
    EXPECT_EQ(datoInstabile(p).che, Instabile::no);
}

}  // namespace
}  // namespace korven::equilibrium
