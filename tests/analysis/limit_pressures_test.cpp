#include "analysis/limit_pressures.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analysis/pressure_coefficients.hpp"

namespace korven::analysis {
namespace {

const double phi30 = pi / 6;
const double radice3 = std::sqrt(3.0);

// phi = 30: tan(45 - 15) = 1/sqrt 3, tan(45 + 15) = sqrt 3.
TEST(LimitiMonte, TakeCohesionOffTheActiveAndAddItToThePassiveLimit) {
    for (double metodo : {1.0, 2.0}) {
        const auto limiti = limitiMonte(metodo, 12, 1.0 / 3, 3, coesioneLimiti(1.5, phi30));
        EXPECT_NEAR(limiti.attiva, 4 - 3 / radice3, 1e-14);
        EXPECT_NEAR(limiti.passiva, 36 + 3 * radice3, 1e-13);
    }
}

TEST(LimitiMonte, ActiveDoesNotFallBelowZero) {
    const auto limiti = limitiMonte(1, 3, 1.0 / 3, 3, coesioneLimiti(1.5, phi30));  // 1 - 1.73
    EXPECT_EQ(limiti.attiva, 0);
    EXPECT_NEAR(limiti.passiva, 9 + 3 * radice3, 1e-14);
}

TEST(LimitiMonte, KnowNoCohesionWithBell) {
    const auto limiti = limitiMonte(3, 12, 1.0 / 3, 3, coesioneLimiti(1.5, phi30));
    EXPECT_EQ(limiti.attiva, 12 * (1.0 / 3));
    EXPECT_EQ(limiti.passiva, 36);
}

// Without the cohesion term there is no floor either.
TEST(LimitiMonte, MayBeNegativeWithBell) {
    EXPECT_EQ(limitiMonte(3, -6, 0.5, 2, coesioneLimiti(1.5, phi30)).attiva, -3);
    EXPECT_EQ(limitiMonte(1, -6, 0.5, 2, coesioneLimiti(0, phi30)).attiva, 0);
}

// The retained side asks for the method alone, so that cohesion counts even where the code is no
// method and the coefficients are 0.
TEST(LimitiMonte, CountCohesionWithoutCoefficientsToo) {
    const auto limiti = limitiMonte(0, 12, 0, 0, coesioneLimiti(1.5, phi30));
    EXPECT_EQ(limiti.attiva, 0);
    EXPECT_NEAR(limiti.passiva, 3 * radice3, 1e-14);
    EXPECT_EQ(limitiMonte(4, 12, 0, 0, coesioneLimiti(1.5, phi30)).passiva, 0);
}

TEST(LimitiValle, MirrorThoseOfTheOtherSide) {
    std::mt19937 caso(231);
    std::uniform_real_distribution<double> angolo(0, 0.8), tensione(0, 40), coesione(0, 5);
    for (int i = 0; i < 1000; ++i) {
        const double phi = angolo(caso), sigma = tensione(caso), c = coesione(caso);
        const auto [ka, kp, motivo] = spinteBell(phi);
        for (double metodo : {1.0, 2.0, 3.0}) {
            const auto m = limitiMonte(metodo, sigma, ka, kp, coesioneLimiti(c, phi));
            const auto v = limitiValle(metodo, sigma, -ka, -kp, coesioneLimiti(c, phi));
            ASSERT_EQ(v.attiva, -m.attiva) << metodo << ' ' << phi;
            ASSERT_EQ(v.passiva, -m.passiva) << metodo << ' ' << phi;
        }
    }
}

TEST(LimitiValle, AddCohesionToTheActiveAndTakeItOffThePassiveLimit) {
    const auto limiti = limitiValle(2, 12, -1.0 / 3, -3, coesioneLimiti(1.5, phi30));
    EXPECT_NEAR(limiti.attiva, -4 + 3 / radice3, 1e-14);
    EXPECT_NEAR(limiti.passiva, -36 - 3 * radice3, 1e-13);
}

TEST(LimitiValle, ActiveDoesNotRiseAboveZero) {
    EXPECT_EQ(limitiValle(1, 3, -1.0 / 3, -3, coesioneLimiti(1.5, phi30)).attiva, 0);
}

TEST(LimitiValle, KnowNoCohesionWithBell) {
    const auto limiti = limitiValle(3, 12, -0.5, -3, coesioneLimiti(1.5, phi30));
    EXPECT_EQ(limiti.attiva, -6);
    EXPECT_EQ(limiti.passiva, -36);
}

// Above the excavation all numbers of this side are 0: cohesion must not hold the wall there.
TEST(LimitiValle, KnowNoCohesionWhereACoefficientIsZero) {
    for (double zero : {0.0, -0.0}) {
        EXPECT_EQ(limitiValle(1, 12, zero, zero, coesioneLimiti(1.5, phi30)).passiva, 0);
        EXPECT_EQ(limitiValle(1, 12, zero, zero, coesioneLimiti(1.5, phi30)).attiva, 0);
        EXPECT_EQ(limitiValle(1, 12, -0.5, zero, coesioneLimiti(1.5, phi30)).attiva, -6);
        EXPECT_EQ(limitiValle(1, 12, zero, -3, coesioneLimiti(1.5, phi30)).passiva, -36);
    }
}

// At the ground level the stress is 0 but the coefficients are not.
TEST(LimitiValle, CountCohesionWithoutStress) {
    const auto limiti = limitiValle(1, 0, -1.0 / 3, -3, coesioneLimiti(1.5, phi30));
    EXPECT_EQ(limiti.attiva, 0);
    EXPECT_NEAR(limiti.passiva, -3 * radice3, 1e-14);
}

// The term of the friction angle alone: a slope changes ka and kp, never the cohesion's share.
TEST(LimitiMonte, GiveTheCohesionTheSameShareOnASlope) {
    const double phi = 35 * pi / 180;
    const auto piano = spinteCoulomb(phi, 0), pendio = spinteCoulomb(phi, 15 * pi / 180);
    const auto a = limitiMonte(1, 20, piano.ka, piano.kp, coesioneLimiti(1, phi));
    const auto b = limitiMonte(1, 20, pendio.ka, pendio.kp, coesioneLimiti(1, phi));
    EXPECT_NEAR(20 * piano.ka - a.attiva, 20 * pendio.ka - b.attiva, 1e-13);
    EXPECT_NEAR(a.passiva - 20 * piano.kp, b.passiva - 20 * pendio.kp, 1e-12);
}

// A cohesive soil without friction, sigma 10, c 2: 10 -/+ 2 c.
TEST(LimitiMonte, AreTheStressLessAndPlusTwiceTheCohesionWithoutFriction) {
    const auto [ka, kp, motivo] = spinteCoulomb(0, 0);
    const auto limiti = limitiMonte(1, 10, ka, kp, coesioneLimiti(2, 0));
    EXPECT_NEAR(limiti.attiva, 6, 1e-14);
    EXPECT_NEAR(limiti.passiva, 14, 1e-14);
}

}  // namespace
}  // namespace korven::analysis
