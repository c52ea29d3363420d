#include "markup/number_profile.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace korven::markup {
namespace {

using Cells = std::vector<std::string>;

// A column after its cells have been rewritten.
Cells aligned(Cells column) {
    int decimals = textProfile;
    for (const auto& cell : column) decimals = std::max(decimals, numberProfile(cell));
    for (auto& cell : column) cell = alignedCell(cell, numberProfile(cell), decimals);
    return column;
}

TEST(NumberProfile, TakesAnythingButBlanksDigitsAndPointsForText) {
    for (const auto* cell : {"abc", "-3.5", "+1", "1e5", "1,5", "Prof. [m]", "1\xC2\xB0", "1\t2"})
        EXPECT_EQ(numberProfile(cell), textProfile) << cell;
}

TEST(NumberProfile, TakesNoPointAndAPointAtTheEndForInteger) {
    for (const auto* cell : {"", "   ", "12", " 7 ", "3.", " 3. ", ".", "1.2."})
        EXPECT_EQ(numberProfile(cell), integerProfile) << cell;
}

TEST(NumberProfile, CountsWhatFollowsTheFirstPoint) {
    EXPECT_EQ(numberProfile("3.125"), 3);
    EXPECT_EQ(numberProfile(".5"), 1);
    EXPECT_EQ(numberProfile("1.2.34"), 4);
}

TEST(NumberProfile, CountsBlanksAtTheEndOfTheUntrimmedCell) {
    EXPECT_EQ(numberProfile("1.5 "), 2);
    EXPECT_EQ(numberProfile("  1.5"), 1);
}

TEST(AlignedCell, GivesAllNumbersTheDecimalsOfTheLongest) {
    EXPECT_EQ(aligned({"1", "2.50", "3.125"}), (Cells{"1.000", "2.500", "3.125"}));
}

TEST(AlignedCell, LeavesTextsAndIntegersBesideThemAlone) {
    EXPECT_EQ(aligned({"1", "abc"}), (Cells{"1", "abc"}));
    EXPECT_EQ(aligned({"12", "-3.5"}), (Cells{"12", "-3.5"}));
    EXPECT_EQ(aligned({"abc", "-1"}), (Cells{"abc", "-1"}));
}

TEST(AlignedCell, PutsAZeroBeforeALeadingPoint) {
    EXPECT_EQ(aligned({".5", "2.5"}), (Cells{"0.5", "2.5"}));
    EXPECT_EQ(aligned({".5", "2.25"}), (Cells{"0.50", "2.25"}));
}

TEST(AlignedCell, GivesAPointAtTheEndASecondOne) {
    EXPECT_EQ(aligned({"3.", "1.25"}), (Cells{"3..0", "1.25"}));
}

TEST(AlignedCell, CutsThePointOffWhereAllAreIntegers) {
    EXPECT_EQ(aligned({"3.", "12"}), (Cells{"3", "12"}));
}

TEST(AlignedCell, GivesAnEmptyCellItsZeros) {
    EXPECT_EQ(aligned({"", "1.25"}), (Cells{"0.00", "1.25"}));
    EXPECT_EQ(aligned({"", "12"}), (Cells{"", "12"}));
    EXPECT_EQ(aligned({"", "abc"}), (Cells{"", "abc"}));
}

TEST(AlignedCell, HasThirteenZerosToGive) {
    EXPECT_EQ(aligned({"1", "0.12345678901234567"}),
              (Cells{"1.0000000000000", "0.12345678901234567"}));
}

TEST(AlignedCell, KeepsABlankThatFollowedTheNumber) {
    EXPECT_EQ(alignedCell("1.5 ", 2, 2), "1.5 ");  // the column takes its outer blanks off later
    EXPECT_EQ(alignedCell(" 7", integerProfile, 1), "7.0");
}

}  // namespace
}  // namespace korven::markup
