#include "analysis/pressure_coefficients.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace korven::analysis {
namespace {

double rad(double gradi) { return gradi * pi / 180; }

// (1 - sin 30) / (1 + sin 10) = 0.5 / 1.173648178
TEST(CoefficienteRiposo, FallsWhenTheGroundRisesAwayFromTheWall) {
    EXPECT_NEAR(coefficienteRiposo(rad(30), rad(10)), 0.426022048, 1e-9);
    EXPECT_NEAR(coefficienteRiposo(rad(30), rad(-10)), 0.605069156, 1e-9);  // 0.5 / 0.826351822
}

TEST(CoefficienteRiposo, IsJakysOnLevelGround) {
    EXPECT_EQ(coefficienteRiposo(0, 0), 1);
    EXPECT_NEAR(coefficienteRiposo(rad(30), 0), 0.5, 1e-15);
}

TEST(CoefficienteRiposo, IsNotFiniteWhereTheGroundFallsVertically) {
    EXPECT_FALSE(std::isfinite(coefficienteRiposo(rad(30), -pi / 2)));
}

struct Caso {
    double phi, beta, ka, kp;
};

// With a = sqrt(sin phi sin(phi - beta) / cos beta), p the same with a plus,
// ka = cos^2 phi / (1 + a)^2 and kp = cos^2 phi / (1 - p)^2, worked out to 20 digits.
TEST(SpinteCoulomb, FollowTheSlope) {
    const Caso casi[] = {{35, 15, 0.318858059708874, 6.33137044376830},
                         {30, 20, 0.441090497973996, 5.73715964650172},
                         {25, -10, 0.366955764003727, 1.84778621565205}};
    for (const auto& [phi, beta, ka, kp] : casi) {
        const auto k = spinteCoulomb(rad(phi), rad(beta));
        EXPECT_EQ(k.motivo, Indefinito::no);
        EXPECT_NEAR(k.ka, ka, 1e-13) << phi << ' ' << beta;
        EXPECT_NEAR(k.kp, kp, 1e-12) << phi << ' ' << beta;
    }
}

// The root of ka vanishes: what is left is the square of the cosine.
TEST(SpinteCoulomb, ActiveIsTheSquareOfTheCosineWhenTheSlopeReachesTheFrictionAngle) {
    for (double phi : {5.0, 20.0, 30.0, 40.0}) {
        const auto k = spinteCoulomb(rad(phi), rad(phi));
        EXPECT_EQ(k.motivo, Indefinito::no) << phi;
        EXPECT_NEAR(k.ka, std::pow(std::cos(rad(phi)), 2), 1e-14) << phi;
    }
}

TEST(SpinteCoulomb, AreOneWithoutFriction) {
    const auto k = spinteCoulomb(0, 0);
    EXPECT_DOUBLE_EQ(k.ka, 1);
    EXPECT_DOUBLE_EQ(k.kp, 1);
}

TEST(SpinteCoulomb, AreUndefinedForASlopeSteeperThanTheFrictionAngle) {
    EXPECT_EQ(spinteCoulomb(rad(20), rad(20.1)).motivo, Indefinito::radiceNegativa);
    EXPECT_EQ(spinteCoulomb(rad(20), rad(-20.1)).motivo, Indefinito::discesaRipida);
    EXPECT_EQ(spinteCoulomb(rad(20), rad(20.1)).ka, 0);
    EXPECT_EQ(spinteCoulomb(rad(20), rad(20.1)).kp, 0);
}

// sin 90 sin 90 = 1: the root eats up the whole denominator of kp.
TEST(SpinteCoulomb, AreUndefinedAndZeroWhereThePassiveDenominatorIsZero) {
    const auto k = spinteCoulomb(pi / 2, 0);
    EXPECT_EQ(k.motivo, Indefinito::denominatoreNullo);
    EXPECT_EQ(k.ka, 0);
    EXPECT_EQ(k.kp, 0);
}

// The pole of kp lies where phi + beta is 90 degrees; the sines meet it but for their last bits.
TEST(SpinteCoulomb, AreUndefinedAtThePoleOfThePassiveCoefficient) {
    for (double phi : {46.0, 50.0, 55.0, 60.0, 67.3, 75.0, 89.0})
        EXPECT_EQ(spinteCoulomb(rad(phi), rad(90 - phi)).motivo, Indefinito::denominatoreNullo)
            << phi;
}

// phi = 60, beta = 45: P = sin 60 sin 105 / cos 45 = 1.183012702, kp = 0.25 / (1 - 1.087663874)^2.
TEST(SpinteCoulomb, BeyondThePoleAreWhatTheFormulaGives) {
    const auto k = spinteCoulomb(rad(60), rad(45));
    EXPECT_EQ(k.motivo, Indefinito::no);
    EXPECT_NEAR(k.kp, 32.5312, 1e-3);
}

// sin 0 makes a zero of the roots whatever the slope, be its sign negative: no root of a negative.
TEST(SpinteCoulomb, AreOneWithoutFrictionAtAnySlope) {
    for (double beta : {-80.0, -20.0, 10.0, 45.0, 80.0}) {
        const auto k = spinteCoulomb(0, rad(beta));
        EXPECT_EQ(k.motivo, Indefinito::no) << beta;
        EXPECT_DOUBLE_EQ(k.ka, 1) << beta;
        EXPECT_DOUBLE_EQ(k.kp, 1) << beta;
    }
}

// R = sqrt(cos^2 beta - cos^2 phi), ka = cos beta (cos beta - R) / (cos beta + R), worked out to
// 20 digits. The coefficients do not feel the sign of the slope.
TEST(SpinteRankine, FollowTheSlope) {
    const Caso casi[] = {{35, 15, 0.296789609131396, 3.14368385275628},
                         {30, 20, 0.414205333557697, 2.13184657468079},
                         {25, -10, 0.430919733987052, 2.25064259977032},
                         {25, 10, 0.430919733987052, 2.25064259977032}};
    for (const auto& [phi, beta, ka, kp] : casi) {
        const auto k = spinteRankine(rad(phi), rad(beta));
        EXPECT_EQ(k.motivo, Indefinito::no);
        EXPECT_NEAR(k.ka, ka, 1e-13) << phi << ' ' << beta;
        EXPECT_NEAR(k.kp, kp, 1e-12) << phi << ' ' << beta;
    }
}

TEST(SpinteRankine, MeetAtTheCosineOfTheSlopeWhenItReachesTheFrictionAngle) {
    const auto k = spinteRankine(rad(30), rad(30));
    EXPECT_EQ(k.motivo, Indefinito::no);
    EXPECT_NEAR(k.ka, std::cos(rad(30)), 1e-15);
    EXPECT_NEAR(k.kp, std::cos(rad(30)), 1e-15);
}

TEST(SpinteRankine, AreOneWithoutFriction) {
    EXPECT_EQ(spinteRankine(0, 0).ka, 1);
    EXPECT_EQ(spinteRankine(0, 0).kp, 1);
}

TEST(SpinteRankine, AreUndefinedForASlopeSteeperThanTheFrictionAngle) {
    EXPECT_EQ(spinteRankine(rad(20), rad(20.1)).motivo, Indefinito::radiceNegativa);
    EXPECT_EQ(spinteRankine(rad(20), rad(-20.1)).motivo, Indefinito::discesaRipida);
}

TEST(SpinteRankine, AreUndefinedAndZeroWhereADenominatorIsZero) {
    const auto k = spinteRankine(pi / 2, 0);
    EXPECT_EQ(k.motivo, Indefinito::denominatoreNullo);
    EXPECT_EQ(k.ka, 0);
    EXPECT_EQ(k.kp, 0);
}

TEST(SpinteBell, AreTheSquaresOfTheTangents) {
    EXPECT_NEAR(spinteBell(rad(30)).ka, 1.0 / 3, 1e-15);
    EXPECT_NEAR(spinteBell(rad(30)).kp, 3, 1e-14);
    EXPECT_NEAR(spinteBell(0).ka, 1, 1e-15);
    EXPECT_NEAR(spinteBell(0).kp, 1, 1e-15);
}

TEST(CoefficientiSpinta, AreChosenByTheCode) {
    const double phi = rad(35), beta = rad(15);
    EXPECT_NEAR(coefficientiSpinta(1, phi, beta).ka, 0.318858059708874, 1e-13);
    EXPECT_NEAR(coefficientiSpinta(2, phi, beta).ka, 0.296789609131396, 1e-13);
    // (1 - sin 35) / (1 + sin 35): the slope does not enter.
    EXPECT_NEAR(coefficientiSpinta(3, phi, beta).ka, 0.270990054120144, 1e-13);
    EXPECT_EQ(coefficientiSpinta(3, phi, beta).kp, coefficientiSpinta(3, phi, 0).kp);
}

TEST(CoefficientiSpinta, StayZeroForACodeThatIsNoMethod) {
    for (double codice : {0.0, -1.0, 1.5, 4.0, 99.0}) {
        const auto k = coefficientiSpinta(codice, rad(30), rad(40));
        EXPECT_EQ(k.ka, 0) << codice;
        EXPECT_EQ(k.kp, 0) << codice;
        EXPECT_EQ(k.motivo, Indefinito::no) << codice;
    }
}

TEST(CoefficientiSpinta, AllMethodsAgreeOnLevelGround) {
    std::mt19937 caso(221);
    std::uniform_real_distribution<double> gradi(1, 50);
    for (int i = 0; i < 1000; ++i) {
        const double phi = rad(gradi(caso));
        const double ka = (1 - std::sin(phi)) / (1 + std::sin(phi));
        for (int metodo = 1; metodo <= 3; ++metodo) {
            const auto k = coefficientiSpinta(metodo, phi, 0);
            ASSERT_EQ(k.motivo, Indefinito::no);
            ASSERT_NEAR(k.ka, ka, 1e-13) << metodo << ' ' << phi;
            ASSERT_NEAR(k.kp * ka, 1, 1e-12) << metodo << ' ' << phi;
        }
    }
}

TEST(CoefficientiSpinta, RestLiesBetweenActiveAndPassiveOnLevelGround) {
    std::mt19937 caso(222);
    std::uniform_real_distribution<double> gradi(0.1, 50);
    for (int i = 0; i < 1000; ++i) {
        const double phi = rad(gradi(caso));
        const double k0 = coefficienteRiposo(phi, 0);
        for (int metodo = 1; metodo <= 3; ++metodo) {
            const auto k = coefficientiSpinta(metodo, phi, 0);
            ASSERT_LT(k.ka, k0) << metodo << ' ' << phi;
            ASSERT_LT(k0, k.kp) << metodo << ' ' << phi;
        }
    }
}

// The slope lowers k0 and raises Coulomb's ka: 0.5 / 1.5 against cos^2 30.
TEST(CoefficientiSpinta, RestMayLieBelowActiveOnASlope) {
    EXPECT_NEAR(coefficienteRiposo(rad(30), rad(30)), 1.0 / 3, 1e-15);
    EXPECT_NEAR(spinteCoulomb(rad(30), rad(30)).ka, 0.75, 1e-14);
}

TEST(CoefficientiSpinta, CoulombsActiveGrowsWithTheSlope) {
    std::mt19937 caso(223);
    std::uniform_real_distribution<double> gradi(5, 45), parte(-1, 1);
    for (int i = 0; i < 1000; ++i) {
        const double phi = gradi(caso);
        double a = phi * parte(caso), b = phi * parte(caso);
        if (a > b) std::swap(a, b);
        ASSERT_LE(spinteCoulomb(rad(phi), rad(a)).ka, spinteCoulomb(rad(phi), rad(b)).ka + 1e-15)
            << phi << ' ' << a << ' ' << b;
    }
}

}  // namespace
}  // namespace korven::analysis
