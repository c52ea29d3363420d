#include "plot/line_clip.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace korven::plot {
namespace {

constexpr Riquadro quadro{0, 0, 10, 5};

TEST(RitagliaTratto, StrokeInsideStaysAsItIs) {
    const Tratto dentro{{1, 1}, {9, 4}};
    EXPECT_EQ(ritagliaTratto(dentro, quadro), dentro);
}

TEST(RitagliaTratto, StrokeBeyondASideIsDropped) {
    for (const Tratto fuori : {Tratto{{-1, 1}, {-2, 4}}, Tratto{{11, 1}, {12, 4}},
                               Tratto{{1, -1}, {9, -2}}, Tratto{{1, 6}, {9, 7}}})
        EXPECT_FALSE(ritagliaTratto(fuori, quadro));
}

TEST(RitagliaTratto, StrokePastACornerIsDroppedAfterItWasMoved) {
    EXPECT_FALSE(ritagliaTratto({{-2, 4}, {2, 8}}, quadro));   // meets x = 0 at y = 6
    EXPECT_FALSE(ritagliaTratto({{8, -3}, {14, 3}}, quadro));  // meets x = 10 at y = -1
}

TEST(RitagliaTratto, EndBeyondASideIsMovedToIt) {
    EXPECT_EQ(ritagliaTratto({{-4, 1}, {4, 3}}, quadro), (Tratto{{0, 2}, {4, 3}}));
    EXPECT_EQ(ritagliaTratto({{5, -5}, {5, 15}}, quadro), (Tratto{{5, 5}, {5, 0}}));
    EXPECT_EQ(ritagliaTratto({{-10, 2}, {30, 2}}, quadro), (Tratto{{10, 2}, {0, 2}}));
}

TEST(RitagliaTratto, EndsExchangedToBringTheOuterOneFirstStayExchanged) {
    EXPECT_EQ(ritagliaTratto({{4, 3}, {-4, 1}}, quadro), (Tratto{{0, 2}, {4, 3}}));
    EXPECT_EQ(ritagliaTratto({{4, 1}, {12, 5}}, quadro), (Tratto{{10, 4}, {4, 1}}));
}

TEST(RitagliaTratto, StrokeOnTheVeryEdgeStays) {
    for (const Tratto bordo : {Tratto{{0, 0}, {0, 5}}, Tratto{{10, 0}, {10, 5}},
                               Tratto{{0, 0}, {10, 0}}, Tratto{{0, 5}, {10, 5}}})
        EXPECT_EQ(ritagliaTratto(bordo, quadro), bordo);
    EXPECT_EQ(ritagliaTratto({{0, -1}, {0, 6}}, quadro), (Tratto{{0, 5}, {0, 0}}));
}

TEST(RitagliaTratto, PointInsideStaysAndPointOutsideIsDropped) {
    EXPECT_EQ(ritagliaTratto({{1, 1}, {1, 1}}, quadro), (Tratto{{1, 1}, {1, 1}}));
    EXPECT_FALSE(ritagliaTratto({{11, 1}, {11, 1}}, quadro));
}

// Length of the stroke's part inside, from the interval of its parameter (Liang and Barsky).
double lunghezzaDentro(const Tratto& t, const Riquadro& r) {
    const double dx = t.a.x - t.da.x;
    const double dy = t.a.y - t.da.y;
    double t0 = 0;
    double t1 = 1;
    const double p[] = {-dx, dx, -dy, dy};
    const double q[] = {t.da.x - r.xmin, r.xmax - t.da.x, t.da.y - r.ymin, r.ymax - t.da.y};
    for (int i = 0; i < 4; ++i) {
        if (p[i] < 0) t0 = std::max(t0, q[i] / p[i]);
        if (p[i] > 0) t1 = std::min(t1, q[i] / p[i]);
    }
    return t0 < t1 ? (t1 - t0) * std::hypot(dx, dy) : 0;
}

TEST(RitagliaTratto, KeepsExactlyThePartInsideOfAnyStroke) {
    std::mt19937 caso(20);
    std::uniform_real_distribution<double> x(-15, 25), y(-10, 15);
    int visibili = 0;
    for (int i = 0; i < 5000; ++i) {
        const Tratto t{{x(caso), y(caso)}, {x(caso), y(caso)}};
        const auto dentro = ritagliaTratto(t, quadro);
        double lunghezza = 0;
        if (dentro) {
            ++visibili;
            lunghezza = std::hypot(dentro->a.x - dentro->da.x, dentro->a.y - dentro->da.y);
            for (const Punto p : {dentro->da, dentro->a}) {
                EXPECT_TRUE(p.x >= 0 && p.x <= 10 && p.y >= 0 && p.y <= 5) << p.x << ' ' << p.y;
            }
        }
        EXPECT_NEAR(lunghezza, lunghezzaDentro(t, quadro), 1e-9);
    }
    EXPECT_GT(visibili, 500);
}

}  // namespace
}  // namespace korven::plot
