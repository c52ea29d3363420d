#include "equilibrium/newton.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/stage_problems.hpp"

namespace korven::equilibrium {
namespace {

using Vettore = std::vector<double>;

Vettore risolvi(const ProblemaFase& p, Vettore y = {}) {
    y.resize(p.nodi.size());
    Newton newton(p.n());
    EXPECT_EQ(newton.risolvi(p, y).esito, EsitoNewton::trovato);
    return y;
}

// A beam on two hinges under a uniform load q. With finite differences the elastic line is
// q / (24 EJ) (z^4 - 2 L z^3 + L^3 z + h^2 z (L - z)): the last term makes good for the fourth
// power, whose second difference over h^2 is 12 z^2 + 2 h^2.
TEST(Newton, BendsABeamOnTwoHinges) {
    auto p = test::pareteNuda(21, 0.5, 2000);
    p.nodi.front().vincolato = p.nodi.back().vincolato = true;
    p.costante = 1.5;
    const Vettore y = risolvi(p);
    const double L = 10, h = 0.5;
    for (int i = 0; i <= 20; ++i) {
        const double z = i * h;
        const double attesa =
            1.5 / (24 * 2000) *
            (std::pow(z, 4) - 2 * L * std::pow(z, 3) + L * L * L * z + h * h * z * (L - z));
        EXPECT_NEAR(y[static_cast<std::size_t>(i)], attesa, 1e-9) << i;
    }
}

// Under a load that is linear with depth a wall on equal springs moves as a rigid one.
TEST(Newton, MovesAWallOnSpringsByLoadOverModulus) {
    auto p = test::pareteNuda(26, 0.4, 12345);
    for (int i = 0; i < p.n(); ++i) {
        auto& nodo = p.nodi[static_cast<std::size_t>(i)];
        nodo.acqua = 3 + 0.7 * p.profondita(i);
        nodo.monte = {0, -500, -1e9, 1e9};
        nodo.valle = {0, -1000, -1e9, 1e9};
    }
    const Vettore y = risolvi(p);
    for (int i = 0; i < p.n(); ++i)
        EXPECT_NEAR(y[static_cast<std::size_t>(i)], (3 + 0.7 * p.profondita(i)) / 1500, 1e-12) << i;
}

// Rigid wall, translation: 11 m of soil that gives at most 2 t/m2 against 1.5 t/m2, an anchor of
// 100 t/m takes the rest at 1 m. About the anchor the soil must balance alone.
ProblemaFase ancorata() {
    auto p = test::pareteNuda(23, 0.5, 5000);
    for (int i = 0; i < p.n(); ++i) {
        auto& nodo = p.nodi[static_cast<std::size_t>(i)];
        const double z = p.profondita(i);
        nodo.monte = {0.4 * z, -300, 0.25 * z, 4 * z};
        if (z >= 5) nodo.valle = {-0.4 * (z - 5), -600, -5 * (z - 5), -0.2 * (z - 5)};
    }
    p.tiranti = {{2, 100, 1, 0, false, 1}};
    return p;
}

TEST(Newton, LeavesNoForceWithoutBalance) {
    const auto p = ancorata();
    const Vettore y = risolvi(p);
    Vettore r(y.size());
    Newton(p.n()).residuo(p, y, r);
    for (const double resto : r) EXPECT_NEAR(resto, 0, 1e-10);
}

// The energy is strictly convex here: there is one solution, wherever the search begins.
TEST(Newton, FindsTheSameFromAnywhere) {
    const auto p = ancorata();
    const Vettore y = risolvi(p);
    for (const double inizio : {-5.0, -0.01, 0.3, 40.0}) {
        const Vettore altra = risolvi(p, Vettore(p.nodi.size(), inizio));
        for (std::size_t i = 0; i < y.size(); ++i) EXPECT_NEAR(altra[i], y[i], 1e-10) << inizio;
    }
}

// Nothing holds the wall where it is; a metre further there is soil again.
TEST(Newton, GoesThroughASingularTangent) {
    auto p = test::pareteNuda(11, 1, 1000);
    p.costante = 1;
    for (auto& nodo : p.nodi) nodo.valle = {1000, -1000, -3, 0};  // 0 up to y = 1, -3 from 1.003
    const Vettore y = risolvi(p);
    for (const double spostamento : y) EXPECT_NEAR(spostamento, 1.001, 1e-9);
}

TEST(Newton, TellsADisplacementBeyondAllUse) {
    auto p = test::pareteNuda(11, 1, 1000);
    p.costante = 1;
    for (auto& nodo : p.nodi) nodo.valle = {0, -5e-5, -3, 0};  // 20 km
    Vettore y(11);
    Newton newton(11);
    EXPECT_EQ(newton.risolvi(p, y).esito, EsitoNewton::senzaMisura);
}

TEST(Newton, TellsNumbersThatAreNone) {
    auto p = test::pareteNuda(11, 1, 1000);
    p.nodi.front().vincolato = p.nodi.back().vincolato = true;
    p.costante = 1e308;
    p.H = 1e308;
    Vettore y(11);
    Newton newton(11);
    EXPECT_EQ(newton.risolvi(p, y).esito, EsitoNewton::nessunNumero);
}

}  // namespace
}  // namespace korven::equilibrium
