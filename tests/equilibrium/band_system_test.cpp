#include "equilibrium/band_system.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace korven::equilibrium {
namespace {

using Vettore = std::vector<double>;

// K x with D'D taken as the second differences of the second differences.
Vettore applica(double e, const Vettore& k, const Vettore& x) {
    Vettore b(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) b[i] = k[i] * x[i];
    for (std::size_t i = 1; i + 1 < x.size(); ++i) {
        const double piega = e * (x[i - 1] - 2 * x[i] + x[i + 1]);
        b[i - 1] += piega;
        b[i] -= 2 * piega;
        b[i + 1] += piega;
    }
    return b;
}

// Four nodes, e = 1, springs of 1 at the ends. Under a force of 1 on node 2 the wall turns into
// x1 = 2/3, x4 = 1/3 by the balance of moments; the bend between follows from the rows of nodes 1
// and 4: x1 - 2 x2 + x3 = -2/3 and x2 - 2 x3 + x4 = -1/3.
TEST(SistemaBanda, SolvesFourNodesAsByHand) {
    SistemaBanda banda(4);
    ASSERT_TRUE(banda.fattorizza(1, Vettore{1, 0, 0, 1}));
    Vettore x(4);
    banda.risolvi(Vettore{0, 1, 0, 0}, x);
    EXPECT_NEAR(x[0], 2.0 / 3, 1e-14);
    EXPECT_NEAR(x[1], 10.0 / 9, 1e-14);
    EXPECT_NEAR(x[2], 8.0 / 9, 1e-14);
    EXPECT_NEAR(x[3], 1.0 / 3, 1e-14);
}

TEST(SistemaBanda, GivesBackWhatTheTangentMadeOfAVector) {
    std::mt19937 caso(3);
    std::uniform_real_distribution<double> uno(0, 1);
    for (const int n : {4, 5, 6, 7, 51, 250}) {
        Vettore k(static_cast<std::size_t>(n)), x(k.size()), trovato(k.size());
        for (double& molla : k) molla = 10 * uno(caso);
        for (double& spostamento : x) spostamento = uno(caso);
        SistemaBanda banda(n);
        ASSERT_TRUE(banda.fattorizza(100, k));
        banda.risolvi(applica(100, k, x), trovato);
        for (std::size_t i = 0; i < x.size(); ++i) EXPECT_NEAR(trovato[i], x[i], 1e-9) << n;
    }
}

TEST(SistemaBanda, IsSingularWithoutTwoSprings) {
    SistemaBanda banda(9);
    Vettore k(9);
    EXPECT_FALSE(banda.fattorizza(1000, k));
    k[4] = 7;
    EXPECT_FALSE(banda.fattorizza(1000, k));
    k[5] = 7;
    EXPECT_TRUE(banda.fattorizza(1000, k));
}

}  // namespace
}  // namespace korven::equilibrium
