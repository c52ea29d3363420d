#include "structure/circle_in_strip.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace korven::structure {
namespace {

using std::numbers::pi;

TEST(AreaCerchioInStriscia, IsNothingWhereTheCircleOnlyTouchesTheStrip) {
    EXPECT_EQ(areaCerchioInStriscia(5, 5, 10, 20), 0);
    EXPECT_EQ(areaCerchioInStriscia(25, 5, 10, 20), 0);
    EXPECT_EQ(areaCerchioInStriscia(50, 5, 10, 20), 0);
}

TEST(AreaCerchioInStriscia, IsTheWholeCircleInsideTheStripEvenWhereItTouchesBothEdges) {
    EXPECT_DOUBLE_EQ(areaCerchioInStriscia(14, 3, 10, 20), 9 * pi);
    EXPECT_DOUBLE_EQ(areaCerchioInStriscia(15, 5, 10, 20), 25 * pi);
}

TEST(AreaCerchioInStriscia, IsHalfTheCircleWhenAnEdgeRunsThroughItsCentre) {
    EXPECT_DOUBLE_EQ(areaCerchioInStriscia(10, 4, 10, 20), 8 * pi);
    EXPECT_DOUBLE_EQ(areaCerchioInStriscia(20, 4, 10, 20), 8 * pi);
}

// An edge at half the radius cuts off r^2 (pi/3 - sqrt(3)/4).
TEST(AreaCerchioInStriscia, CutsTheSegmentOfElementaryGeometry) {
    const double segmento = 4 * (pi / 3 - std::sqrt(3.0) / 4);
    EXPECT_NEAR(areaCerchioInStriscia(0, 2, 1, 5), segmento, 1e-13);
    EXPECT_NEAR(areaCerchioInStriscia(0, 2, -5, -1), segmento, 1e-13);
    EXPECT_NEAR(areaCerchioInStriscia(0, 2, -1, 5), 4 * pi - segmento, 1e-13);
    EXPECT_NEAR(areaCerchioInStriscia(0, 2, -5, 1), 4 * pi - segmento, 1e-13);
    EXPECT_NEAR(areaCerchioInStriscia(0, 2, -1, 1), 4 * pi - 2 * segmento, 1e-13);
}

TEST(AreaCerchioInStriscia, CircleOfNoRadiusHasNoAreaOnAFaceOrInside) {
    EXPECT_EQ(areaCerchioInStriscia(0, 0, 0, 8), 0);
    EXPECT_EQ(areaCerchioInStriscia(800, 0, 792, 800), 0);
    EXPECT_EQ(areaCerchioInStriscia(4, 0, 0, 8), 0);
}

TEST(AreaCerchioInStriscia, StripsOfACircleSumToItsArea) {
    std::mt19937 caso(32);
    std::uniform_real_distribution<double> raggio(0.5, 600), posto(0, 1);
    for (int n = 0; n < 500; ++n) {
        const double r = raggio(caso);
        const double H = 2 * r * (1 + posto(caso));
        const double c = r + posto(caso) * (H - 2 * r);
        const double dy = H / 100;
        double somma = 0;
        for (int i = 1; i <= 100; ++i) {
            const double a = areaCerchioInStriscia(c, r, dy * (i - 1), dy * i);
            EXPECT_GE(a, -1e-9 * r * r) << r << ' ' << c << ' ' << i;
            EXPECT_LE(a, 2 * r * dy * (1 + 1e-9)) << r << ' ' << c << ' ' << i;
            somma += a;
        }
        EXPECT_NEAR(somma / (pi * r * r), 1, 1e-11) << r << ' ' << c;
    }
}

TEST(AreaCerchioInStriscia, IsTheSameForTheMirroredStrip) {
    std::mt19937 caso(33);
    std::uniform_real_distribution<double> u(-1.5, 1.5);
    for (int n = 0; n < 1000; ++n) {
        const double a = u(caso), b = u(caso);
        const double y0 = std::min(a, b), y1 = std::max(a, b);
        EXPECT_NEAR(areaCerchioInStriscia(0, 1, y0, y1), areaCerchioInStriscia(0, 1, -y1, -y0),
                    1e-14);
    }
}

TEST(AreaCerchioInStriscia, NeverLosesItsValueWhereAnEdgeGrazesTheCircle) {
    for (int n = 1; n <= 3000; ++n) {
        const double r = 0.1 * n, c = 0.3 * n;
        for (double bordo : {c - r, c + r})
            for (double y : {std::nextafter(bordo, 0.0), bordo, std::nextafter(bordo, 1e9)}) {
                EXPECT_NEAR(areaCerchioInStriscia(c, r, y, y + 10 * r) +
                                areaCerchioInStriscia(c, r, y - 10 * r, y),
                            pi * r * r, 1e-9 * r * r)
                    << n;
            }
    }
}

}  // namespace
}  // namespace korven::structure
