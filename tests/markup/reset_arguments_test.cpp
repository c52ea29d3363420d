#include "markup/reset_arguments.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

// One centimetre is 28.3464... points: 2 cm 56.69, 1.5 cm 42.51, 3 cm 85.03, 0.5 cm 14.17,
// 10 cm 283.46, -1 cm -28.35.

TEST(ParseReset, ReadsTheEightFieldsInOrder) {
    const auto page = parseReset("1,2,3,0.5,1.5,10,12.9,Courier New");
    EXPECT_EQ(page.leftMargin, 28);
    EXPECT_EQ(page.rightMargin, 56);
    EXPECT_EQ(page.topMargin, 85);
    EXPECT_EQ(page.bottomMargin, 14);
    EXPECT_EQ(page.headerGap, 42);
    EXPECT_EQ(page.footerGap, 283);
    EXPECT_EQ(page.headerFontSize, 12);
    EXPECT_EQ(page.headerFontName, "Courier New");
}

TEST(ParseReset, TwoFieldsGiveTwoMarginsAndNothingElse) {
    const auto page = parseReset("2,2");
    EXPECT_EQ(page.leftMargin, 56);
    EXPECT_EQ(page.rightMargin, 56);
    for (const double length :
         {page.topMargin, page.bottomMargin, page.headerGap, page.footerGap, page.headerFontSize})
        EXPECT_EQ(length, 0);
    EXPECT_EQ(page.headerFontName, "");
    EXPECT_EQ(parseReset("").leftMargin, 0);
}

TEST(ParseReset, TakesTheNumberAtTheHeadOfAFieldAndZeroWithoutOne) {
    const auto page = parseReset(" 2cm,due,,.5,2e0,-1,-1.5,Arial");
    EXPECT_EQ(page.leftMargin, 56);
    EXPECT_EQ(page.rightMargin, 0);
    EXPECT_EQ(page.topMargin, 0);
    EXPECT_EQ(page.bottomMargin, 14);
    EXPECT_EQ(page.headerGap, 56);
    EXPECT_EQ(page.footerGap, -29);  // the integer part rounds down
    EXPECT_EQ(page.headerFontSize, -1);
}

TEST(ParseReset, FontNameIsTakenAsItIsUpToItsComma) {
    EXPECT_EQ(parseReset("2,2,2,2,2,2,12, Arial ,bold").headerFontName, " Arial ");
}

}  // namespace
}  // namespace korven::markup
