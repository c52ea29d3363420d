#include "drawings/log/depth_scale.hpp"

#include <gtest/gtest.h>

namespace korven::drawings {
namespace {

TEST(BordoInferiore, FollowsThePageOfThePrinter) {
    EXPECT_NEAR(bordoInferiore(27), 1.6, 1e-12);
    EXPECT_NEAR(bordoInferiore(20), 8.6, 1e-12);
}

TEST(BordoInferiore, IsNeverBelowSixMillimetres) {
    EXPECT_EQ(bordoInferiore(28.5), 0.6) << "a page taller than 28.4 cm";
    EXPECT_EQ(bordoInferiore(28), 0.6);
    EXPECT_EQ(bordoInferiore(altezzaPaginaA4), 0.6);
    EXPECT_EQ(bordoInferiore(42), 0.6);
}

TEST(ScalaProfondita, FillsTheHeightAboveTheLowerEdge) {
    const ScalaProfondita scala(20, 0.6);
    EXPECT_DOUBLE_EQ(scala.N(), 100);  // 100 * 20 / 20
    EXPECT_DOUBLE_EQ(scala.y(0), 21);
    EXPECT_DOUBLE_EQ(scala.y(7.5), 13.5);
    EXPECT_DOUBLE_EQ(scala.y(20), 1);
}

TEST(ScalaProfondita, OfALowPageEndsHigher) {
    const ScalaProfondita scala(38, 1.6);
    EXPECT_DOUBLE_EQ(scala.N(), 200);  // 100 * 38 / 19
    EXPECT_DOUBLE_EQ(scala.y(38), 2);
}

TEST(PassoProfondita, GrowsWithTheDepth) {
    const std::pair<double, double> casi[] = {{0.5, 1},  {20, 1},  {20.01, 2},  {50, 2},
                                              {50.1, 5}, {100, 5}, {100.1, 10}, {1000, 10}};
    for (const auto& [profondita, passo] : casi)
        EXPECT_EQ(passoProfondita(profondita), passo) << profondita;
}

}  // namespace
}  // namespace korven::drawings
