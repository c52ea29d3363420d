#include "markup/syllable_rule.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

std::size_t prima(std::string_view testo) { return sillaba(caratteri(testo)); }

TEST(Sillaba, EndsBetweenDoubleConsonants) {
    EXPECT_EQ(prima("sabbia"), 3u) << "sab-bia";
    EXPECT_EQ(prima("SABBIA"), 3u);
    EXPECT_EQ(prima("ghiacciaio"), 5u) << "ghiac-ciaio";
    EXPECT_EQ(prima("sBbia"), 5u) << "capital and small letter are no double";
}

TEST(Sillaba, EndsBeforeAConsonantBetweenVowels) {
    EXPECT_EQ(prima("limosa"), 2u) << "li-mosa";
    EXPECT_EQ(prima("mosa"), 2u);
    EXPECT_EQ(prima("OSA"), 1u);
}

TEST(Sillaba, DoesNotEndBeforeTwoConsonants) {
    EXPECT_EQ(prima("argilla"), 5u) << "the double l is the first place, not the r";
    EXPECT_EQ(prima("conglomerato"), 6u) << "conglo-merato";
}

TEST(Sillaba, IsTheWholeWordWhereNoRuleApplies) {
    EXPECT_EQ(prima("ghiaia"), 6u);
    EXPECT_EQ(prima("ghiaia fine"), 6u) << "up to the blank";
}

TEST(Sillaba, TakesABlankAlone) {
    EXPECT_EQ(prima(" fine"), 1u);
    EXPECT_EQ(prima("a fine"), 1u);
}

TEST(Sillaba, LooksOnlyAtTheLettersOfTheRule) {
    EXPECT_EQ(prima("hhhh"), 4u) << "h is never doubled";
    EXPECT_EQ(prima("axe"), 1u) << "any sign that is no vowel may stand between two";
    EXPECT_EQ(prima("wxyk"), 4u);
}

TEST(Sillaba, CountsCharactersNotBytes) {
    EXPECT_EQ(prima("così"), 4u) << "an accented letter is no vowel of the rule";
    EXPECT_EQ(prima("più"), 3u);
    EXPECT_EQ(prima("àmmo"), 2u);
}

TEST(Sillaba, OfNothingIsOneMoreThanItsLength) { EXPECT_EQ(prima(""), 1u); }

}  // namespace
}  // namespace korven::markup
