#include "structure/stiffness.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <utility>

#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

using project::Sezione;
using std::numbers::pi;

void expectRelative(double valore, double atteso, double tolleranza = 1e-12) {
    EXPECT_NEAR(valore / atteso, 1, tolleranza) << valore << " for " << atteso;
}

TEST(CalcolaEJ, PiIsFourTimesTheArctangentOfOne) { EXPECT_EQ(pi, 4 * std::atan(1.0)); }

TEST(CalcolaEJ, IsNothingWithoutAKindOfWall) {
    Sezione s = diaframmaSimmetrico();
    s.tipoDiaframma = false;
    EXPECT_EQ(calcolaEJ(s), 0);
}

TEST(CalcolaEJ, DiaphragmWithSteelAsStiffAsConcreteIsAPlainRectangle) {
    Sezione s = diaframmaSimmetrico();
    s.modEacciaio = s.modEcls;
    expectRelative(calcolaEJ(s), 30000.0 * 1000 * 800 * 800 * 800 / 12);
}

// Worked out apart from the program: H 1000, n = 8, Am = pi 20^2/4/200 = 1.570796,
// Av = pi 30^2/4/100 = 7.068583; x = 515.16398 mm from the uphill face;
// EJ = 25e6 [ 1000^3/12 + 7 (Av (925 - x)^2 + Am (x - 60)^2) ].
TEST(CalcolaEJ, DiaphragmOfTwoUnequalFacesMatchesTheHandCalculation) {
    Sezione s = sezioneConMateriali();
    s.tipoDiaframma = true;
    s.modEcls = 25000;
    s.modEacciaio = 200000;
    s.spessoreDiaframma = 100;
    s.copriferroMonte = 5;
    s.interasseMonte = 20;
    s.diametroMonte = 2;
    s.copriferroValle = 6;
    s.interasseValle = 10;
    s.diametroValle = 3;
    expectRelative(calcolaEJ(s), 2348057088216556.0);
}

// With equal faces the centroid should lie at H/2; the uphill layer enters it at its cover and not
// at its axis, which moves it by
//     delta = (n-1) Am (dm/2) / (H + 2 (n-1) Am)
// towards the uphill face and adds 2 (n-1) Am delta^2 to the second moment.
TEST(CalcolaEJ, UphillLayerEntersTheCentroidWithoutItsHalfDiameter) {
    Sezione s = diaframmaSimmetrico();
    s.diametroMonte = s.diametroValle = 10;  // large bars make the effect plain
    s.interasseMonte = s.interasseValle = 10;
    const double n = 200000.0 / 30000;
    const double Am = pi * 100 * 100 / 4 / 100;
    const double delta = (n - 1) * Am * 50 / (800 + 2 * (n - 1) * Am);
    const double braccio = 400 - 50 - 50;
    const double J =
        800.0 * 800 * 800 / 12 + (n - 1) * 2 * Am * (braccio * braccio + delta * delta);
    expectRelative(calcolaEJ(s), 30000.0 * 1000 * J);
    EXPECT_GT(delta, 10);
}

TEST(CalcolaEJ, MirroredDiaphragmIsNotAsStiff) {
    Sezione valle = diaframmaArmatoAValle();
    valle.modEacciaio = 210000;
    Sezione monte = valle;
    std::swap(monte.copriferroMonte, monte.copriferroValle);
    std::swap(monte.interasseMonte, monte.interasseValle);
    std::swap(monte.diametroMonte, monte.diametroValle);
    // By hand: centroids 305.264356 mm and 294.470214 mm from the uphill face.
    expectRelative(calcolaEJ(valle), 562053660086513.75);
    expectRelative(calcolaEJ(monte), 562003385372577.06);
}

TEST(CalcolaEJ, HalfFilledFaceOfADiaphragmHasNoSteel) {
    const double solaValle = calcolaEJ(diaframmaArmatoAValle());
    Sezione s = diaframmaArmatoAValle();
    s.copriferroMonte = 5;
    s.interasseMonte = 20;  // no diameter
    EXPECT_EQ(calcolaEJ(s), solaValle);
    s.interasseMonte = 0;
    s.diametroMonte = 2.4;  // no spacing
    EXPECT_EQ(calcolaEJ(s), solaValle);
}

// EJ = 1000 (pi/4) (30000 x 290^4 + 210000 (300^4 - 290^4)) / 800
TEST(CalcolaEJ, FilledTubesMatchTheHandCalculation) {
    Sezione s = paliTubolari();
    s.modEacciaio = 210000;
    expectRelative(calcolaEJ(s), 420084148510525.5);
}

// Be = 210, Bi = 190, He = 810, Hi = 790, wave 1600:
// 1000 x 200000 (210 x 810^3 - 190 x 790^3) / 12 / 1600
TEST(CalcolaEJ, SheetPileMatchesTheHandCalculationAndNeedsNoConcrete) {
    Sezione s;
    s.tipoPalancola = true;
    s.modEacciaio = 200000;
    s.fyk = 430;
    s.palancolaBase = 20;
    s.palancolaLargAla = 30;
    s.palancolaAltAla = 40;
    s.palancolaSpessore = 1;
    s.palancolaSpessAla = 0.8;
    expectRelative(calcolaEJ(s), 186720833333333.3);
}

// On a ring of 12 bars the squares of the sines sum to 6:
// (Ec pi/4 400^4 + (Es - Ec) (6 x 328^2 x 144 pi + 12 pi/4 12^4)) per metre
TEST(CalcolaEJ, RingOfBarsReplacesConcrete) {
    Sezione s = paliArmati();
    s.modEacciaio = 210000;
    expectRelative(calcolaEJ(s), 655784410665375.8);
}

// 2.5 bars are two, at 0 and at 2 pi / 2.5 = 144 degrees.
TEST(CalcolaEJ, FractionalCountOfBarsKeepsItsAngleAndLosesItsFraction) {
    Sezione s = paliArmati();
    s.modEacciaio = 210000;
    s.armNumLong = 2.5;
    expectRelative(calcolaEJ(s), 606218356296225.0);
}

TEST(CalcolaEJ, StoredCountBelowOneIsAPlainConcretePile) {
    Sezione s = paliArmati();
    s.armNumLong = 0.8;  // shown as 8
    expectRelative(calcolaEJ(s), 30000 * (pi / 4) * std::pow(400, 4));
}

TEST(CalcolaEJ, FirstTrueFlagDecides) {
    Sezione s = paliArmati();
    const double soli = calcolaEJ(s);
    s.tipoPali = true;
    s.paliDiamEst = 60;
    s.paliDiamInt = 58;
    s.paliInterasse = 80;
    EXPECT_EQ(calcolaEJ(s), calcolaEJ(paliTubolari()));
    EXPECT_NE(calcolaEJ(s), soli);
}

}  // namespace
}  // namespace korven::structure
