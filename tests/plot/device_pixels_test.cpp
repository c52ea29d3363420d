#include "plot/device_pixels.hpp"

#include <gtest/gtest.h>

namespace korven::plot {
namespace {

TEST(PixelInteri, CutsTheFractionTowardsZero) {
    EXPECT_EQ(pixelInteri(2.9), 2);
    EXPECT_EQ(pixelInteri(-2.9), -2);
    EXPECT_EQ(pixelInteri(0), 0);
}

TEST(PixelInteri, HoldsWhatLiesBeyondAnyDevice) {
    EXPECT_EQ(pixelInteri(1e300), 1000000000);
    EXPECT_EQ(pixelInteri(-1e300), -1000000000);
}

TEST(DecimiDiGrado, IsTheNearestTenthOfADegree) {
    EXPECT_EQ(decimiDiGrado(90), 900);
    EXPECT_EQ(decimiDiGrado(-30.26), -303);
    EXPECT_EQ(decimiDiGrado(0.04), 0);
}

}  // namespace
}  // namespace korven::plot
