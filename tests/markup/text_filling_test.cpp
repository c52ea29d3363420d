#include "markup/text_filling.hpp"

#include <gtest/gtest.h>

#include <random>

namespace korven::markup {
namespace {

double fives(std::string_view text) { return 5.0 * static_cast<double>(text.size()); }

// What the text is to become, blank by blank.
std::string byHand(std::string text, char fill, std::string_view tail, double width,
                   const TextMeasure& measure) {
    while (measure(std::string(text).append(tail)) < width) text += fill;
    return text;
}

TEST(FilledUpTo, StopsWhereTheWidthIsReached) {
    EXPECT_EQ(filledUpTo("", ' ', "", 14.9, fives), "   ");
    EXPECT_EQ(filledUpTo("", ' ', "", 15.0, fives), "   ");
    EXPECT_EQ(filledUpTo("", ' ', "", 15.1, fives), "    ");
    EXPECT_EQ(filledUpTo("ab", ' ', "xyz", 35, fives), "ab  ");
}

TEST(FilledUpTo, AddsNothingWhereThereIsNothingToReach) {
    EXPECT_EQ(filledUpTo("ab", ' ', "", 10, fives), "ab");
    EXPECT_EQ(filledUpTo("", ' ', "", -3, fives), "");
    EXPECT_EQ(filledUpTo("", ' ', "", 0, fives), "");
}

TEST(FilledUpTo, EndsThoughTheFillHasNoWidth) {
    EXPECT_EQ(filledUpTo("ab", ' ', "", 100, [](std::string_view) { return 0.0; }), "ab");
}

TEST(FilledUpTo, GivesWhatFillingOneByOneGivesAlsoWhereNeighboursOverlap) {
    // Pairs of characters are closer than each alone, as in a face with kerning.
    const TextMeasure kerned = [](std::string_view text) {
        double width = 0;
        for (std::size_t i = 0; i < text.size(); ++i)
            width += 3.7 + 0.1 * (text[i] % 7) - (i > 0 ? 0.05 * (text[i - 1] % 5) : 0);
        return width;
    };
    std::mt19937 random(5);
    std::uniform_int_distribution<int> length(0, 12), letter('a', 'z');
    std::uniform_real_distribution<double> target(-10, 300);
    for (int i = 0; i < 500; ++i) {
        std::string text, tail;
        for (int n = length(random); n > 0; --n) text += static_cast<char>(letter(random));
        for (int n = length(random); n > 0; --n) tail += static_cast<char>(letter(random));
        const double width = target(random);
        EXPECT_EQ(filledUpTo(text, '.', tail, width, kerned),
                  byHand(text, '.', tail, width, kerned));
    }
}

TEST(DottedLeader, PutsOneBlankAndThenPointsUpToTheWidth) {
    EXPECT_EQ(dottedLeader("abc", 40, fives), "abc ....");
    EXPECT_EQ(dottedLeader("abc", 10, fives), "abc ");
    EXPECT_EQ(dottedLeader("", 20, fives), " ...");
}

}  // namespace
}  // namespace korven::markup
