#include "markup/syllable_rule.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

std::size_t first(std::string_view text) { return syllable(characters(text)); }

TEST(Syllable, EndsBetweenDoubleConsonants) {
    EXPECT_EQ(first("sabbia"), 3u) << "sab-bia";
    EXPECT_EQ(first("SABBIA"), 3u);
    EXPECT_EQ(first("ghiacciaio"), 5u) << "ghiac-ciaio";
    EXPECT_EQ(first("sBbia"), 5u) << "capital and small letter are no double";
}

TEST(Syllable, EndsBeforeAConsonantBetweenVowels) {
    EXPECT_EQ(first("limosa"), 2u) << "li-mosa";
    EXPECT_EQ(first("mosa"), 2u);
    EXPECT_EQ(first("OSA"), 1u);
}

TEST(Syllable, DoesNotEndBeforeTwoConsonants) {
    EXPECT_EQ(first("argilla"), 5u) << "the double l is the first place, not the r";
    EXPECT_EQ(first("conglomerato"), 6u) << "conglo-merato";
}

TEST(Syllable, IsTheWholeWordWhereNoRuleApplies) {
    EXPECT_EQ(first("ghiaia"), 6u);
    EXPECT_EQ(first("ghiaia fine"), 6u) << "up to the blank";
}

TEST(Syllable, TakesABlankAlone) {
    EXPECT_EQ(first(" fine"), 1u);
    EXPECT_EQ(first("a fine"), 1u);
}

TEST(Syllable, LooksOnlyAtTheLettersOfTheRule) {
    EXPECT_EQ(first("hhhh"), 4u) << "h is never doubled";
    EXPECT_EQ(first("axe"), 1u) << "any sign that is no vowel may stand between two";
    EXPECT_EQ(first("wxyk"), 4u);
}

TEST(Syllable, CountsCharactersNotBytes) {
    EXPECT_EQ(first("così"), 4u) << "an accented letter is no vowel of the rule";
    EXPECT_EQ(first("più"), 3u);
    EXPECT_EQ(first("àmmo"), 2u);
}

TEST(Syllable, OfNothingIsOneMoreThanItsLength) { EXPECT_EQ(first(""), 1u); }

}  // namespace
}  // namespace korven::markup
