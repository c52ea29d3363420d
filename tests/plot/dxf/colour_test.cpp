#include "plot/dxf/colour.hpp"

#include <gtest/gtest.h>

namespace korven::plot {
namespace {

TEST(LivelloDxf, IsTheNumberOfTheColourInTheStandardPalette) {
    const Colore tavolozza[] = {daRgb(0, 0, 128), daRgb(0, 128, 0),   daRgb(0, 128, 128),
                                daRgb(128, 0, 0), daRgb(128, 0, 128), daRgb(128, 128, 0)};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(livelloDxf(tavolozza[i]), i + 1);
    const Colore chiari[] = {daRgb(0, 0, 255), daRgb(0, 255, 0),   daRgb(0, 255, 255),
                             daRgb(255, 0, 0), daRgb(255, 0, 255), daRgb(255, 255, 0)};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(livelloDxf(chiari[i]), i + 9);
}

TEST(LivelloDxf, MakesBlackWhiteAndEveryGreyWhite) {
    for (const int grigio : {0, 1, 63, 64, 128, 192, 220, 255})
        EXPECT_EQ(livelloDxf(daRgb(grigio, grigio, grigio)), 15) << grigio;
}

TEST(LivelloDxf, ReducesEachPartToThreeLevels) {
    EXPECT_EQ(livelloDxf(daRgb(63, 0, 255)), 9);      // 0 0 255
    EXPECT_EQ(livelloDxf(daRgb(64, 0, 191)), 5);      // 128 0 128
    EXPECT_EQ(livelloDxf(daRgb(191, 191, 63)), 6);    // 128 128 0
    EXPECT_EQ(livelloDxf(daRgb(192, 63, 0)), 12);     // 255 0 0
    EXPECT_EQ(livelloDxf(daRgb(250, 251, 252)), 15);  // no grey, but all three at their highest
}

TEST(LivelloDxf, ColourThatIsAlmostGreyCanReduceToDarkGrey) {
    EXPECT_EQ(livelloDxf(daRgb(100, 110, 120)), 8);  // 128 128 128; light grey is never met
}

TEST(LivelloDxf, ColourThatReducesToNoneOfThePaletteHasNoNumber) {
    EXPECT_FALSE(livelloDxf(daRgb(255, 128, 0)));
    EXPECT_FALSE(livelloDxf(daRgb(255, 128, 128)));
    EXPECT_FALSE(livelloDxf(daRgb(10, 20, 30)));  // almost black, which is number 0
}

}  // namespace
}  // namespace korven::plot
