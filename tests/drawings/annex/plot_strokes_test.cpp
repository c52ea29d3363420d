#include "drawings/annex/plot_strokes.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace korven::drawings {
namespace {

using scene::Punto;

TEST(Fuori, LeavesWhatLiesBesideTheRectanglesInItsOrder) {
    const auto tratti = fuori({0, 5}, {20, 5}, {{12, 0, 14, 10}, {4, 0, 6, 10}, {5, 0, 8, 10}});
    const std::vector<TrattoScena> attesi{{{0, 5}, {4, 5}}, {{8, 5}, {12, 5}}, {{14, 5}, {20, 5}}};
    ASSERT_EQ(tratti.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        EXPECT_NEAR(tratti[i].first.x, attesi[i].first.x, 1e-12) << i;
        EXPECT_NEAR(tratti[i].second.x, attesi[i].second.x, 1e-12) << i;
    }
}

TEST(Fuori, KeepsAStrokeThatTouchesNoneAndTakesAwayOneThatIsCovered) {
    const std::vector<scene::Riquadro> riquadri{{0, 0, 10, 10}};
    EXPECT_EQ(fuori({0, 20}, {10, 20}, riquadri), (std::vector<TrattoScena>{{{0, 20}, {10, 20}}}));
    EXPECT_EQ(fuori({11, 0}, {30, 19}, riquadri), (std::vector<TrattoScena>{{{11, 0}, {30, 19}}}));
    EXPECT_TRUE(fuori({2, 2}, {8, 9}, riquadri).empty());
}

TEST(Dentro, CutsASlantedStrokeAtTheFrame) {
    const auto parte = dentro({-10, 0}, {10, 20}, {0, 0, 100, 15});
    ASSERT_TRUE(parte.has_value());
    EXPECT_NEAR(parte->first.x, 0, 1e-12);
    EXPECT_NEAR(parte->first.y, 10, 1e-12);
    EXPECT_NEAR(parte->second.x, 5, 1e-12);
    EXPECT_NEAR(parte->second.y, 15, 1e-12);
    EXPECT_FALSE(dentro({-1, 0}, {-1, 20}, {0, 0, 100, 15}));
}

// Dashes of 5 and gaps of 3 along 20: 0-5, 8-13, 16-20, of which the corner at 10 parts the second.
TEST(ATratti, GoesOnRoundACorner) {
    const auto tratti = aTratti({{0, 0}, {10, 0}, {10, 10}}, 5, 3);
    ASSERT_EQ(tratti.size(), 4u);
    EXPECT_EQ(tratti[0], (TrattoScena{{0, 0}, {5, 0}}));
    EXPECT_EQ(tratti[1], (TrattoScena{{8, 0}, {10, 0}}));
    EXPECT_EQ(tratti[2], (TrattoScena{{10, 0}, {10, 3}}));
    EXPECT_EQ(tratti[3], (TrattoScena{{10, 6}, {10, 10}}));
}

TEST(ATratti, EndsOnChainsOfTinyLines) {
    std::vector<Punto> punti;
    for (int i = 0; i <= 1000; ++i) punti.push_back({0.1 * i, 0.01 * (i % 3)});
    double lungo = 0;
    for (const auto& [da, a] : aTratti(punti, 5, 3)) lungo += std::hypot(a.x - da.x, a.y - da.y);
    EXPECT_NEAR(lungo / 100, 5.0 / 8, 0.05);
}

double area(const std::vector<std::vector<Punto>>& pezzi) {
    double somma = 0;
    for (const auto& p : pezzi) {
        double doppia = 0;
        for (std::size_t i = 0; i < p.size(); ++i) {
            const Punto &a = p[i], &b = p[(i + 1) % p.size()];
            doppia += a.x * b.y - b.x * a.y;
        }
        somma += std::fabs(doppia) / 2;
        EXPECT_LE(p.size(), 4u);
    }
    return somma;
}

TEST(InFasce, CoversAPolygonWithAHollow) {
    // A U of 10 by 10 with a hollow of 4 by 6.
    const std::vector<Punto> u{{0, 0}, {3, 0}, {3, 6}, {7, 6}, {7, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_NEAR(area(inFasce(u)), 100 - 24, 1e-9);
    EXPECT_NEAR(area(inFasce({{0, 0}, {4, 0}, {0, 3}})), 6, 1e-12);
    EXPECT_TRUE(inFasce({{0, 0}, {4, 0}}).empty());
}

TEST(InFasce, FillsTheFieldBetweenACurveAndItsAxisOnBothSides) {
    // The axis x = 0; the curve goes to 2 at depth 1, to -2 at depth 3, each a triangle of area 2.
    const std::vector<Punto> campo{{0, 0}, {2, 1}, {0, 2}, {-2, 3}, {0, 4}};
    EXPECT_NEAR(area(inFasce(campo)), 4, 1e-12);
}

}  // namespace
}  // namespace korven::drawings
