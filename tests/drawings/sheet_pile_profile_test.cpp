#include "drawings/sheet_pile_profile.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace korven::drawings {
namespace {

// 3-4-5: the leg rises 40 while it goes 30 along the wall, so its thickness along the wall is
// 12 * 5 / 4 = 15.
constexpr structure::PalancolaMm onda{100, 30, 40, 8, 12};

TEST(SheetPileProfile, IsOneWaveLongAndSymmetricAboutItsMiddle) {
    const auto profilo = profiloPalancola(onda);
    EXPECT_DOUBLE_EQ(profilo.front().y, -160);  // half of 4 * 30 + 2 * 100
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_DOUBLE_EQ(profilo[i].y, -profilo[5 - i].y);
        EXPECT_DOUBLE_EQ(profilo[6 + i].y, -profilo[11 - i].y);
    }
}

TEST(SheetPileProfile, HasItsFacesHalfAThicknessBesideTheAxes) {
    const auto profilo = profiloPalancola(onda);
    EXPECT_DOUBLE_EQ(profilo[0].x, 44);   // downhill face of the outer flat
    EXPECT_DOUBLE_EQ(profilo[11].x, 36);  // its uphill face
    EXPECT_DOUBLE_EQ(profilo[2].x, -36);  // the middle flat
    EXPECT_DOUBLE_EQ(profilo[9].x, -44);
    // On the downhill face the leg lies 15/2 nearer the middle than its axis, which passes
    // y = -80 at x = 0: y = -80 - x * 30/40 + 7.5.
    EXPECT_DOUBLE_EQ(profilo[1].y, -80 - 44 * 0.75 + 7.5);
    EXPECT_DOUBLE_EQ(profilo[2].y, -80 + 36 * 0.75 + 7.5);
}

}  // namespace
}  // namespace korven::drawings
