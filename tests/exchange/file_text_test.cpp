#include "exchange/file_text.hpp"

#include <gtest/gtest.h>

namespace korven::exchange {
namespace {

using namespace std::string_literals;

TEST(TestoDiFile, IsUtf8WithOrWithoutItsMark) {
    EXPECT_EQ(testoDiFile("però γ 😀"), "però γ 😀");
    EXPECT_EQ(testoDiFile("\xEF\xBB\xBFperò"), "però");
    EXPECT_EQ(testoDiFile(""), "");
    EXPECT_EQ(testoDiFile("\xEF\xBB\xBF"), "");
}

TEST(TestoDiFile, TakesBytesThatAreNoUtf8ForWindows1252) {
    EXPECT_EQ(testoDiFile("per\xF2 \x80"), "però €");
    EXPECT_EQ(testoDiFile("m\xC3"), "mÃ");               // cut in the middle of a character
    EXPECT_EQ(testoDiFile("\xC0\xAF"), "À¯");            // a character longer than it need be
    EXPECT_EQ(testoDiFile("\xE0\x80\xAF"), "à€¯");       // another
    EXPECT_EQ(testoDiFile("\xED\xA0\x80"), "í\u00A0€");  // half of a pair
    EXPECT_EQ(testoDiFile("\xF4\x90\x80\x80"), "ô\u0090€€");
}

TEST(TestoDiFile, KnowsUtf16ByItsMark) {
    EXPECT_EQ(testoDiFile("\xFF\xFE\x31\x00\xF2\x00\xB3\x03"s), "1òγ");
    EXPECT_EQ(testoDiFile("\xFE\xFF\x00\x31\x00\xF2\x03\xB3"s), "1òγ");
    EXPECT_EQ(testoDiFile("\xFF\xFE\x3D\xD8\x00\xDE"s), "😀");
    EXPECT_EQ(testoDiFile("\xFF\xFE\x3D\xD8\x31\x00"s), "\uFFFD1");  // half of a pair
    EXPECT_EQ(testoDiFile("\xFF\xFE\x31\x00\x32"s), "1");            // half of a character
}

}  // namespace
}  // namespace korven::exchange
