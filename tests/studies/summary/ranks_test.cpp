#include "studies/summary/ranks.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace korven::studies {
namespace {

using Numeri = std::vector<double>;

std::optional<double> correlazione(const Numeri& x, const Numeri& y) {
    return spearman(ranghi(x), ranghi(y));
}

// (5 - 1) 0.25 = 1 is the second value, (5 - 1) 0.9 = 3.6 lies between the fourth and the fifth.
TEST(QuantileCampionario, LiesBetweenTwoValues) {
    const Numeri v{1, 2, 4, 8, 16};
    EXPECT_EQ(quantileCampionario(v, 0), 1);
    EXPECT_EQ(quantileCampionario(v, 0.25), 2);
    EXPECT_EQ(quantileCampionario(v, 0.5), 4);
    EXPECT_NEAR(quantileCampionario(v, 0.9), 8 + 0.6 * 8, 1e-12);
    EXPECT_EQ(quantileCampionario(v, 1), 16);
    EXPECT_EQ(quantileCampionario(Numeri{7}, 0.3), 7);
}

TEST(Ranghi, OfEqualValuesAreTheMeanOfTheirs) {
    EXPECT_EQ(ranghi(Numeri{30, 10, 20}), (Numeri{3, 1, 2}));
    EXPECT_EQ(ranghi(Numeri{5, 1, 5, 9, 5}), (Numeri{3, 1, 3, 5, 3}));
    EXPECT_EQ(ranghi(Numeri{2, 2}), (Numeri{1.5, 1.5}));
    EXPECT_TRUE(ranghi(Numeri{}).empty());
}

// Without equal values 1 - 6 sum d^2 / (n (n^2 - 1)). Ranks 1 2 3 4 5 and 2 1 4 3 5: d^2 =
// 1+1+1+1+0, 1 - 24 / 120 = 0.8.
TEST(Spearman, IsThatOfFivePointsByHand) {
    EXPECT_NEAR(*correlazione({10, 20, 30, 40, 50}, {3, 1, 8, 5, 90}), 0.8, 1e-15);
}

// With two equal values: ranks 1 2 3 4 5 and 1 2.5 2.5 4 5. Deviations from 3: -2 -1 0 1 2 and
// -2 -.5 -.5 1 2; products 4 + .5 + 0 + 1 + 4 = 9.5, squares 10 and 9.5: 9.5 / sqrt(95).
TEST(Spearman, TakesMeanRanksOfEqualValues) {
    EXPECT_NEAR(*correlazione({1, 2, 3, 4, 5}, {10, 20, 20, 40, 50}), 9.5 / std::sqrt(95.0), 1e-15);
}

TEST(Spearman, IsOneForWhateverGrowsAlong) {
    EXPECT_NEAR(*correlazione({1, 2, 3, 4}, {1, 8, 27, 64}), 1, 1e-15);
    EXPECT_NEAR(*correlazione({1, 2, 3, 4}, {64, 27, 8, 1}), -1, 1e-15);
}

TEST(Spearman, IsNoneOfWhatDoesNotVary) {
    EXPECT_FALSE(correlazione({1, 2, 3}, {7, 7, 7}));
    EXPECT_FALSE(correlazione({1}, {7}));
    EXPECT_FALSE(correlazione({}, {}));
}

}  // namespace
}  // namespace korven::studies
