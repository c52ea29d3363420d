#include "panels/anchor_stiffness.hpp"

#include <gtest/gtest.h>

namespace korven::panels {
namespace {

// Four strands of 140 mm² and 195 kN/mm², 12 m free, every 2.4 m:
// 195 * 560 / (12 * 2.4) = 109200 / 28.8 = 3791.667 kN/m per metre.
constexpr Ancoraggio quattroTrefoli{195000, 560, 12, 2.4, 0};

TEST(RigidezzaPerMetro, IsThatOfTheBarOverLengthAndSpacing) {
    EXPECT_NEAR(rigidezzaPerMetro(quattroTrefoli), 3791.6667, 1e-3);
}

TEST(RigidezzaPerMetro, TakesTheSquareOfTheCosine) {
    Ancoraggio inclinato = quattroTrefoli;
    inclinato.inclinazione = 30;  // cos² = 3/4
    EXPECT_NEAR(rigidezzaPerMetro(inclinato), 2843.75, 1e-3);
    inclinato.inclinazione = 45;
    EXPECT_NEAR(rigidezzaPerMetro(inclinato), 3791.6667 / 2, 1e-3);
}

TEST(ForzaPerMetro, IsTheHorizontalComponentOverTheSpacing) {
    EXPECT_DOUBLE_EQ(forzaPerMetro(600, 2.5, 0), 240);
    EXPECT_NEAR(forzaPerMetro(600, 2.5, 60), 120, 1e-9);
}

TEST(ForzaDiUno, TakesTheForcePerMetreBackToTheAnchor) {
    EXPECT_NEAR(forzaDiUno(120, 2.5, 60), 600, 1e-9);
    for (const double alfa : {0.0, 12.5, 35.0, 80.0})
        EXPECT_NEAR(forzaDiUno(forzaPerMetro(431, 1.7, alfa), 1.7, alfa), 431, 1e-9) << alfa;
}

TEST(AreaBarre, IsThatOfTheirCircles) {
    EXPECT_NEAR(areaBarre(1, 32), 804.248, 1e-3);
    EXPECT_NEAR(areaBarre(3, 20), 942.478, 1e-3);
}

}  // namespace
}  // namespace korven::panels
