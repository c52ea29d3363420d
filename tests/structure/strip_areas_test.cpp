#include "structure/strip_areas.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

using std::numbers::pi;

double somma(const TabellaStrisce& aree) {
    double s = 0;
    for (int i = 1; i <= nStrisce; ++i) s += aree[i];
    return s;
}

TEST(AreeDiaframma, HoldBothLayersAtTheirCoversAndConcreteInAllTheRest) {
    DiaframmaMm d = diaframmaMm(diaframmaSimmetrico());  // strips of 8 mm
    d.monte.interasse = 100;
    const AreeStrisce aree = areeDiaframma(d, 1000);
    const double barra = pi * 12 * 12;
    EXPECT_NEAR(somma(aree.As), barra * 5 + barra * 10, 1e-8);
    EXPECT_NEAR(somma(aree.As) + somma(aree.Ac), 800 * 1000, 1e-6);
    // valle: from y = 50 to 74, strips 7 (48-56) to 10 (72-80)
    EXPECT_EQ(aree.As[6], 0);
    EXPECT_GT(aree.As[7], 0);
    EXPECT_GT(aree.As[10], 0);
    EXPECT_EQ(aree.As[11], 0);
    EXPECT_NEAR(aree.As[7] + aree.As[8] + aree.As[9] + aree.As[10], barra * 5, 1e-9);
    EXPECT_NEAR(aree.As[94], 2 * aree.As[7], 1e-9);  // monte: mirrored, bars twice as close
    EXPECT_DOUBLE_EQ(aree.Ac[50], 8000);
}

TEST(AreeDiaframma, FaceLeftAtZeroHasNoSteel) {
    const AreeStrisce aree = areeDiaframma(diaframmaMm(diaframmaArmatoAValle()), 1000);
    EXPECT_NEAR(somma(aree.As), pi * 144 * 5, 1e-9);
    EXPECT_EQ(aree.As[nStrisce], 0);
}

TEST(AreeDiaframma, HalfFilledFaceHasNoSteelAndDividesByNothing) {
    DiaframmaMm d = diaframmaMm(diaframmaArmatoAValle());
    const AreeStrisce solaValle = areeDiaframma(d, 1000);
    for (const FacciaMm& monte : {FacciaMm{50, 0, 0}, FacciaMm{50, 200, 0}, FacciaMm{50, 0, 24},
                                  FacciaMm{0, 0, 24}, FacciaMm{50, -200, 24}}) {
        d.monte = monte;
        const AreeStrisce aree = areeDiaframma(d, 1000);
        EXPECT_EQ(aree.As, solaValle.As);
        EXPECT_EQ(aree.Ac, solaValle.Ac);
    }
}

TEST(AreePali, SplitASteelTubeFromItsFilling) {
    const AreeStrisce aree = areePali(paliMm(paliTubolari()), 1000);
    EXPECT_NEAR(somma(aree.Ac), pi * 290 * 290 / 0.8, 1e-6);
    EXPECT_NEAR(somma(aree.As), pi * (300 * 300 - 290 * 290) / 0.8, 1e-6);
    EXPECT_EQ(aree.Ac[1], 0);  // 6 mm of the wall's 10
    EXPECT_GT(aree.As[1], 0);
    for (int i = 1; i <= 50; ++i) {
        EXPECT_NEAR(aree.As[i], aree.As[101 - i], 1e-7) << i;
        EXPECT_NEAR(aree.Ac[i], aree.Ac[101 - i], 1e-7) << i;
    }
}

TEST(AreePali, EqualDiametersLeaveConcreteAlone) {
    const AreeStrisce aree = areePali({.diamEst = 600, .diamInt = 600, .interasse = 800}, 1000);
    for (int i = 1; i <= nStrisce; ++i) EXPECT_EQ(aree.As[i], 0);
    EXPECT_NEAR(somma(aree.Ac), pi * 300 * 300 / 0.8, 1e-6);
}

// 400 deep, strips of 4 mm: the flat of 20 mm fills five strips.
TEST(AreePalancola, FillWholeStripsOfTheFlats) {
    const PalancolaMm p = palancolaMm(palancola());
    const double tw = spessoreOrizzontaleAla(p);
    const AreeStrisce aree = areePalancola(p, 1000);
    const double ali = 1000 * 2 * 4 * tw / 800, piatto = 1000 * 4 * (200 - tw) / 800;
    for (int i : {1, 5, 96, 100}) EXPECT_NEAR(aree.As[i], ali + piatto, 1e-9) << i;
    for (int i : {6, 7, 50, 94, 95}) EXPECT_NEAR(aree.As[i], ali, 1e-9) << i;
    EXPECT_EQ(somma(aree.Ac), 0);
}

// 400 deep with flats of 18 mm: four full strips of 4 mm and half a fifth one.
TEST(AreePalancola, FillTheLastStripOfAFlatInPart) {
    PalancolaMm p = palancolaMm(palancola());
    p.spessore = 18;
    p.altAla = 191;
    const double tw = spessoreOrizzontaleAla(p);
    const AreeStrisce aree = areePalancola(p, 1000);
    const double ali = 1000 * 2 * 4 * tw / 800;
    for (int i : {5, 96}) EXPECT_NEAR(aree.As[i], ali + 1000 * 2 * (200 - tw) / 800, 1e-9) << i;
    for (int i : {6, 95}) EXPECT_NEAR(aree.As[i], ali, 1e-9) << i;
    EXPECT_NEAR(somma(aree.As), 1000 * (2 * 18 * (200 - tw) + 400 * 2 * tw) / 800, 1e-8);
}

// 100 deep with flats of 60.5 mm, which overlap: strips of 1 mm, 60 of them full from either face,
// and half of strip 61 from the top, of strip 40 from below, set last.
TEST(AreePalancola, FlatsThatOverlapLeaveTheirEndStripsPartFilled) {
    const PalancolaMm p{
        .base = 200, .largAla = 50, .altAla = 19.75, .spessore = 60.5, .spessAla = 10};
    const double tw = spessoreOrizzontaleAla(p);
    const AreeStrisce aree = areePalancola(p, 1000);
    const double onda = 4 * 50 + 2 * 200, ali = 1000 * 2 * tw / onda;
    for (int i : {1, 39, 41, 50, 60, 62, 100})
        EXPECT_NEAR(aree.As[i], ali + 1000 * (200 - tw) / onda, 1e-9) << i;
    for (int i : {40, 61}) EXPECT_NEAR(aree.As[i], ali + 1000 * 0.5 * (200 - tw) / onda, 1e-9) << i;
}

TEST(AreePalancola, ProfileWithoutHeightIsAllFlat) {
    const PalancolaMm p{
        .base = 200, .largAla = 1e-20, .altAla = 1e-20, .spessore = 20, .spessAla = 10};
    const double tw = 10 * std::sqrt(2.0);
    const AreeStrisce aree = areePalancola(p, 1000);
    for (int i : {1, 50, 100})
        EXPECT_NEAR(aree.As[i], 1000 * 0.2 * (200 - tw + 2 * tw) / 400, 1e-9) << i;
}

TEST(AreePaliArmati, TakeTheBarsOutOfTheConcrete) {
    const AreeStrisce aree = areePaliArmati(paliArmatiMm(paliArmati()), 1000);
    EXPECT_NEAR(somma(aree.As), 12 * pi * 144, 1e-7);
    EXPECT_NEAR(somma(aree.As) + somma(aree.Ac), pi * 400 * 400, 1e-5);
}

// One bar is at mid-depth, 388 to 412 mm: strips 49 (384-392) to 52 (408-416).
TEST(AreePaliArmati, PutTheFirstBarAtMidDepth) {
    PaliArmatiMm p = paliArmatiMm(paliArmati());
    p.numLong = 1;
    const AreeStrisce aree = areePaliArmati(p, 1000);
    EXPECT_NEAR(somma(aree.As), pi * 144, 1e-9);
    EXPECT_EQ(aree.As[48], 0);
    EXPECT_GT(aree.As[49], 0);
    EXPECT_NEAR(aree.As[50], aree.As[51], 1e-9);
    EXPECT_EQ(aree.As[53], 0);
}

TEST(AreePaliArmati, FractionalCountLosesItsFractionAndKeepsItsAngle) {
    PaliArmatiMm p = paliArmatiMm(paliArmati());
    p.numLong = 2.5;  // bars at 0 and 144 degrees: y = 400 and 400 + 328 sin(144) = 592.79
    const AreeStrisce aree = areePaliArmati(p, 1000);
    EXPECT_NEAR(somma(aree.As), 2 * pi * 144, 1e-9);
    double oltreMeta = 0;
    for (int i = 73; i <= 76; ++i) oltreMeta += aree.As[i];  // 576 to 608 mm
    EXPECT_NEAR(oltreMeta, pi * 144, 1e-9);
}

TEST(AreePaliArmati, StoredCountBelowOneIsPlainConcrete) {
    PaliArmatiMm p = paliArmatiMm(paliArmati());
    p.numLong = 0.8;
    const AreeStrisce aree = areePaliArmati(p, 1000);
    EXPECT_EQ(somma(aree.As), 0);
    EXPECT_NEAR(somma(aree.Ac), pi * 400 * 400, 1e-5);
}

}  // namespace
}  // namespace korven::structure
