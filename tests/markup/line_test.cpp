#include "markup/line.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

TEST(MarkupLine, DirectiveIsAKeywordInUpperCaseAndATrimmedArgument) {
    const auto parts = takeApart("  #Header   Program  KORVEN 32  ");
    EXPECT_TRUE(parts.directive);
    EXPECT_EQ(parts.keyword, "#HEADER");
    EXPECT_EQ(parts.argument, "Program  KORVEN 32");
}

TEST(MarkupLine, LineWithoutABlankIsAllKeyword) {
    for (const char* line : {"#left", "  #left  "}) {
        EXPECT_EQ(takeApart(line).keyword, "#LEFT");
        EXPECT_EQ(takeApart(line).argument, "");
    }
    EXPECT_EQ(takeApart("#").keyword, "#");
}

TEST(MarkupLine, TabEndsNoKeywordAndIsNotTrimmed) {
    EXPECT_EQ(takeApart("#font\tArial x").keyword, "#FONT\tARIAL");
    EXPECT_EQ(takeApart("#header \tText\t").argument, "\tText\t");
    EXPECT_EQ(takeApart(" a\tb\t ").text, "a\tb\t");
    EXPECT_FALSE(takeApart("\t#left").directive);
}

TEST(MarkupLine, AnyOtherLineIsContentWithoutItsOuterBlanks) {
    EXPECT_FALSE(takeApart("  Muro # 1 ").directive);
    EXPECT_EQ(takeApart("  Muro # 1 ").text, "Muro # 1");
    EXPECT_EQ(takeApart("  Muro # 1 ").keyword, "");
    EXPECT_FALSE(takeApart("").directive);
    EXPECT_EQ(takeApart("   ").text, "");
}

}  // namespace
}  // namespace korven::markup
