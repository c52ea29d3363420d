#include "plot/surface_layout.hpp"

#include <gtest/gtest.h>

namespace korven::plot {
namespace {

TEST(DisponiSuperficie, TallDrawingKeepsTheHeightOfTheRoom) {
    const auto d = disponiSuperficie({0, 0, 19, 27}, {1000, 540, 20});
    EXPECT_DOUBLE_EQ(d.altezza, 540);
    EXPECT_DOUBLE_EQ(d.larghezza, 380);  // 540 * 19 / 27
    EXPECT_DOUBLE_EQ(d.scalaX, 20);
    EXPECT_DOUBLE_EQ(d.scalaY, 20);
    EXPECT_EQ(d.finestra, (Riquadro{0, 0, 19, 27}));
}

TEST(DisponiSuperficie, WideDrawingKeepsTheWidthOfTheRoom) {
    const auto d = disponiSuperficie({5, 5, 45, 15}, {1000, 540, 20});
    EXPECT_DOUBLE_EQ(d.larghezza, 1000);
    EXPECT_DOUBLE_EQ(d.altezza, 250);
    EXPECT_DOUBLE_EQ(d.scalaX, 25);
    EXPECT_DOUBLE_EQ(d.scalaY, 25);
}

TEST(DisponiSuperficie, DrawingOfTheRoomsOwnProportionsFillsIt) {
    const auto d = disponiSuperficie({0, 0, 20, 10}, {1000, 500, 20});
    EXPECT_DOUBLE_EQ(d.larghezza, 1000);
    EXPECT_DOUBLE_EQ(d.altezza, 500);
}

TEST(DisponiSuperficie, NarrowDrawingIsWidenedToSixToolStripsAndGrowsToTheRight) {
    // 500 high, 2 x 20 cm: 50 wide, under 6 x 40 = 240; then 20 * 240 / 500 = 9.6 cm fit in.
    const auto d = disponiSuperficie({1, 0, 3, 20}, {1000, 500, 40});
    EXPECT_DOUBLE_EQ(d.larghezza, 240);
    EXPECT_DOUBLE_EQ(d.altezza, 500);
    EXPECT_DOUBLE_EQ(d.finestra.xmin, 1);
    EXPECT_DOUBLE_EQ(d.finestra.xmax, 10.6);
    EXPECT_DOUBLE_EQ(d.scalaX, 25);
    EXPECT_DOUBLE_EQ(d.scalaY, 25);
}

TEST(DisponiSuperficie, RoomDrawnTogetherToNothingStillHasAPixel) {
    const auto d = disponiSuperficie({0, 0, 20, 10}, {0, -3, 0});
    EXPECT_DOUBLE_EQ(d.larghezza, 1);
    EXPECT_DOUBLE_EQ(d.altezza, 0.5);
    EXPECT_DOUBLE_EQ(d.scalaX, 0.05);
    EXPECT_DOUBLE_EQ(d.scalaY, 0.05);
}

TEST(CarattereSuperficie, IsFourThirdsOfTheHeightInWholePixelsAndNegative) {
    EXPECT_EQ(carattereSuperficie(0.3, 20, 20), -8);   // 6 pixels
    EXPECT_EQ(carattereSuperficie(0.5, 20, 21), -13);  // 10.25 -> 10 -> 13.3
    EXPECT_EQ(carattereSuperficie(1, 2.9, 2.9), -2);   // 2.9 -> 2 -> 2.7
}

TEST(CarattereSuperficie, HeightOfNoPixelIsMinusOne) {
    EXPECT_EQ(carattereSuperficie(0.04, 20, 20), -1);
    EXPECT_EQ(carattereSuperficie(0, 20, 20), -1);
}

TEST(SpessoreSuperficie, IsRoundedDownAndAtLeastOnePixel) {
    EXPECT_EQ(spessoreSuperficie(0.19, 20, 20), 3);
    EXPECT_EQ(spessoreSuperficie(0.1, 20, 39), 2);  // mean scale 29.5
    EXPECT_EQ(spessoreSuperficie(0.01, 20, 20), 1);
    EXPECT_EQ(spessoreSuperficie(0, 20, 20), 1);
}

}  // namespace
}  // namespace korven::plot
