#include "results/working_pressures.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "support/wall_builder.hpp"

namespace korven::results {
namespace {

project::DatiProgetto dueStrati() {
    return test::muro()
        .strato({.fondo = 4, .phi = 30, .coesione = 0.5})
        .strato({.fondo = 10, .phi = 20, .coesione = 2})
        .dati();
}

TEST(ResistenzaNodo, IsThatOfTheLayerOfTheDepth) {
    const auto [phi, c] = resistenzaNodo(dueStrati(), 3.9);
    EXPECT_DOUBLE_EQ(phi, std::numbers::pi / 6);
    EXPECT_EQ(c, 0.5);
}

TEST(ResistenzaNodo, OnABoundaryIsThatOfTheLowerLayer) {
    EXPECT_EQ(resistenzaNodo(dueStrati(), 4).c, 2);
}

TEST(ResistenzaNodo, GoesOnAHundredMetresBelowTheLastLayer) {
    EXPECT_EQ(resistenzaNodo(dueStrati(), 110).c, 2);
    EXPECT_EQ(resistenzaNodo(dueStrati(), 110.5).c, 0);
}

// sigma 10, k0 0.5, ka 1/3, kp 3, Eh -1500 uphill; the same downhill with negative coefficients.
analysis::RisultatiFase fase(double y) {
    analysis::RisultatiFase f;
    f.sigmaVm[1] = 10, f.k0m[1] = 0.5, f.kam[1] = 1. / 3, f.kpm[1] = 3, f.Ehm[1] = -1500;
    f.sigmaVv[1] = 10, f.k0v[1] = -0.5, f.kav[1] = -1. / 3, f.kpv[1] = -3, f.Ehv[1] = -1500;
    f.yNodo[1] = y;
    return f;
}

constexpr Resistenza sabbia{std::numbers::pi / 6, 0};
constexpr Resistenza limo{std::numbers::pi / 6, 1};

TEST(PressioniNodo, AtWorkStartFromRestAndFollowTheDisplacement) {
    const auto p = pressioniNodo(fase(0.0005), 1, 1, sabbia);
    EXPECT_DOUBLE_EQ(p.pm, 5 - 0.75);
    EXPECT_DOUBLE_EQ(p.pv, -5 - 0.75);
}

TEST(PressioniNodo, AtWorkStayBetweenTheLimits) {
    const auto avanti = pressioniNodo(fase(0.1), 1, 1, sabbia);
    EXPECT_DOUBLE_EQ(avanti.pm, 10. / 3);
    EXPECT_DOUBLE_EQ(avanti.pv, -30);
    const auto indietro = pressioniNodo(fase(-0.1), 1, 1, sabbia);
    EXPECT_DOUBLE_EQ(indietro.pm, 30);
    EXPECT_DOUBLE_EQ(indietro.pv, -10. / 3);
}

TEST(PressioniNodo, CountCohesionOnBothSidesBelowMethodThree) {
    const auto p = pressioniNodo(fase(0), 1, 1, limo);
    EXPECT_NEAR(p.limitiM.attiva, 10. / 3 - 2 / std::sqrt(3.), 1e-12);
    EXPECT_NEAR(p.limitiM.passiva, 30 + 2 * std::sqrt(3.), 1e-12);
    EXPECT_NEAR(p.limitiV.attiva, -10. / 3 + 2 / std::sqrt(3.), 1e-12);
    EXPECT_NEAR(p.limitiV.passiva, -30 - 2 * std::sqrt(3.), 1e-12);
}

TEST(PressioniNodo, CountNoCohesionFromMethodThreeOn) {
    const auto p = pressioniNodo(fase(0), 1, 3, limo);
    EXPECT_DOUBLE_EQ(p.limitiM.passiva, 30);
    EXPECT_DOUBLE_EQ(p.limitiV.passiva, -30);
}

TEST(PressioniNodo, LetCohesionPullNeitherSide) {
    const auto p = pressioniNodo(fase(0), 1, 1, {std::numbers::pi / 6, 50});
    EXPECT_EQ(p.limitiM.attiva, 0);
    EXPECT_EQ(p.limitiV.attiva, 0);
}

TEST(PressioniNodo, DownhillAboveTheExcavationAreZeroWithCohesionToo) {
    auto f = fase(0.1);
    for (auto* colonna : {&f.sigmaVv, &f.Ehv, &f.k0v, &f.kav, &f.kpv}) (*colonna)[1] = 0;
    const auto p = pressioniNodo(f, 1, 1, limo);
    EXPECT_EQ(p.limitiV.attiva, 0);
    EXPECT_EQ(p.limitiV.passiva, 0);
    EXPECT_EQ(p.pv, 0);
}

}  // namespace
}  // namespace korven::results
