#include "studies/plan/correlation.hpp"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace korven::studies {
namespace {

std::optional<Correlazione> di(std::size_t n, const std::vector<Coppia>& coppie) {
    return Correlazione::di(n, coppie);
}

// R = 1 .5 .2 / .5 1 .4 / .2 .4 1 by hand: L22 = sqrt(.75), L32 = (.4 - .1) / L22 = .3464102,
// L33 = sqrt(1 - .04 - .12) = .9165151.
TEST(Correlazione, AppliesTheFactorOfItsMatrix) {
    const auto correlazione = di(3, {{1, 0, 0.5}, {0, 2, 0.2}, {1, 2, 0.4}});
    ASSERT_TRUE(correlazione);
    std::array<double, 3> z{1, 1, 1};
    correlazione->applica(z);
    EXPECT_DOUBLE_EQ(z[0], 1);
    EXPECT_NEAR(z[1], 1.3660254, 1e-7);
    EXPECT_NEAR(z[2], 0.2 + 0.3464102 + 0.9165151, 1e-7);
}

TEST(Correlazione, LeavesWhatIsInNoPair) {
    const auto correlazione = di(3, {{0, 2, -0.6}});
    std::array<double, 3> z{2, 5, 1};
    correlazione->applica(z);
    EXPECT_EQ(z[1], 5);
    EXPECT_NEAR(z[2], -0.6 * 2 + 0.8, 1e-15);
}

TEST(Correlazione, IsNoneWithoutPairs) {
    const auto correlazione = di(3, {});
    ASSERT_TRUE(correlazione);
    EXPECT_TRUE(correlazione->nessuna());
    std::array<double, 3> z{2, 5, 1};
    correlazione->applica(z);
    EXPECT_EQ(z, (std::array<double, 3>{2, 5, 1}));
}

// Two that go with a third go together: 0.9 and 0.9 leave no room for -0.9.
TEST(Correlazione, RefusesWhatNoVariablesHave) {
    EXPECT_FALSE(di(3, {{0, 1, 0.9}, {0, 2, 0.9}, {1, 2, -0.9}}));
    EXPECT_TRUE(di(3, {{0, 1, 0.9}, {0, 2, 0.9}, {1, 2, 0.9}}));
    EXPECT_FALSE(di(2, {{0, 1, 1}}));
    EXPECT_FALSE(di(2, {{0, 1, -1}}));
    EXPECT_FALSE(di(2, {{0, 1, 1.2}}));
    // 0.6 and 0.8 with their third, which follows from them: 1 - 0.36 - 0.64.
    EXPECT_FALSE(di(3, {{0, 2, 0.6}, {1, 2, 0.8}}));
}

}  // namespace
}  // namespace korven::studies
