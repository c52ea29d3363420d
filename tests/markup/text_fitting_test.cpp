#include "markup/text_fitting.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/code_page.hpp"
#include "base/table.hpp"

namespace korven::markup {
namespace {

using Lines = std::vector<std::string>;

// Every character is one unit wide.
double characterWide(std::string_view text) {
    return static_cast<double>(base::numeroCaratteri(text));
}

Lines fitted(std::string_view text, double width) { return fitText(text, width, characterWide); }

TEST(FitText, LeavesAShortTextInOneLine) {
    EXPECT_EQ(fitted("sabbia limosa", 14), Lines{"sabbia limosa"});
    EXPECT_EQ(fitted("  sabbia", 14), Lines{"sabbia"});
}

TEST(FitText, OfNothingHasNoLines) {
    EXPECT_TRUE(fitted("", 10).empty());
    EXPECT_TRUE(fitted("   ", 10).empty());
}

TEST(FitText, AForcedLineEndBetweenTwoWordsGivesTwoLinesWithoutHyphen) {
    EXPECT_EQ(fitted("sabbia|ghiaia", 20), (Lines{"sabbia", "ghiaia"}));
    EXPECT_EQ(fitted("sabbia | ghiaia|", 20), (Lines{"sabbia", "ghiaia"}));
}

TEST(FitText, TwoForcedLineEndsInARowLeaveALineEmpty) {
    EXPECT_EQ(fitted("sabbia||ghiaia", 20), (Lines{"sabbia", "", "ghiaia"}));
    EXPECT_EQ(fitted("|ghiaia", 20), (Lines{"", "ghiaia"}));
}

TEST(FitText, AWordWithoutAPlaceToPartOverrunsTheColumn) {
    EXPECT_EQ(fitted("ghiaia", 4), Lines{"ghiaia"});
    EXPECT_EQ(fitted("ghiaia fine", 5), (Lines{"ghiaia", "fine"}));
}

TEST(FitText, PartsWordsWithAHyphen) {
    EXPECT_EQ(fitted("sabbia", 5), (Lines{"sab-", "bia"}));
    EXPECT_EQ(fitted("argilla", 6), (Lines{"argil-", "la"}));
}

TEST(FitText, TakesAsManySyllablesAsStayNarrowerThanTheColumn) {
    // 9: "sabbia " has 7, with "li" it would have 9 and be as wide as the column.
    EXPECT_EQ(fitted("sabbia limosa fine", 9), (Lines{"sabbia", "limosa", "fine"}));
    EXPECT_EQ(fitted("sabbia limosa fine", 10), (Lines{"sabbia li-", "mosa fine"}));
}

TEST(FitText, ATextAsWideAsTheColumnIsCut) {
    EXPECT_EQ(fitted("sabbia", 6), (Lines{"sab-", "bia"}));
    EXPECT_EQ(fitted("sabbia", 6.5), Lines{"sabbia"});
}

TEST(FitText, ALineEndAfterACutLineIsNoLineOfItsOwn) {
    EXPECT_EQ(fitted("ghiaia|fine", 5), (Lines{"ghiaia", "fine"}));
    EXPECT_EQ(fitted("ghiaia  |fine", 5), (Lines{"ghiaia", "fine"}));
    EXPECT_EQ(fitted("ghiaia||fine", 5), (Lines{"ghiaia", "", "fine"}));
}

TEST(FitText, ALineEndIsNeverPartOfASyllable) {
    // Without that "ghiaia|sab" would be one, up to the double consonant.
    EXPECT_EQ(fitted("ghiaia|sabbia", 5), (Lines{"ghiaia", "sab-", "bia"}));
}

TEST(FitText, MeasuresCharactersWithAccentsAsOne) {
    EXPECT_EQ(fitted("città più", 10), Lines{"città più"});
    EXPECT_EQ(fitted("città", 5), (Lines{"cit-", "tà"}));
}

TEST(FitText, HoldsAHundredLinesAndNoMore) {
    std::string text;
    for (int i = 0; i < 99; ++i) text += "a|";
    EXPECT_EQ(fitted(text + "a", 10).size(), 100u);
    EXPECT_THROW((void)fitted(text + "a|a", 10), base::ErroreIndice);
}

TEST(FitText, LosesNoLetterOfAnyText) {
    constexpr std::string_view letters = "aeioabcrlst |à";
    std::mt19937 random(54);
    std::uniform_int_distribution<std::size_t> which(0, letters.size() - 1), length(0, 80);
    std::uniform_real_distribution<double> width(0, 15);
    const auto lettersOnly = [](std::string text) {
        std::erase_if(text, [](char c) { return c == ' ' || c == '|' || c == '-'; });
        return text;
    };
    for (int trial = 0; trial < 500; ++trial) {
        std::string text;
        for (std::size_t n = length(random); n > 0; --n) text += letters[which(random)];
        std::string lines;
        for (const auto& line : fitted(text, width(random))) lines += line;
        EXPECT_EQ(lettersOnly(lines), lettersOnly(text));
    }
}

}  // namespace
}  // namespace korven::markup
