#include "markup/table_style.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

TEST(TableStyle, EqualSignAndThreeLettersAlignThreeColumnsLeft) {
    const auto style = parseTableStyle("=<<<");
    EXPECT_EQ(style.tableStyle, 1);
    for (int column = 1; column <= 3; ++column)
        EXPECT_FALSE(rightAligned(style.columnStyle, column));
    for (int column = 4; column <= 30; ++column)
        EXPECT_TRUE(rightAligned(style.columnStyle, column)) << column;
}

TEST(TableStyle, MinusGivesStyleTwoAndAnyOtherCharacterIsALetterOfStyleOne) {
    EXPECT_EQ(parseTableStyle("->l").tableStyle, 2);
    EXPECT_TRUE(rightAligned(parseTableStyle("->l").columnStyle, 1));
    EXPECT_FALSE(rightAligned(parseTableStyle("->l").columnStyle, 2));
    EXPECT_EQ(parseTableStyle("<>").tableStyle, 1);
    EXPECT_FALSE(rightAligned(parseTableStyle("<>").columnStyle, 1));
    EXPECT_TRUE(rightAligned(parseTableStyle("<>").columnStyle, 2));
}

TEST(TableStyle, RestIsTrimmedAfterTheStyleSign) {
    EXPECT_EQ(parseTableStyle("= << ").columnStyle, "<<" + std::string(23, '>'));
}

TEST(TableStyle, EmptyArgumentIsTheDefault) {
    EXPECT_EQ(parseTableStyle("").tableStyle, 1);
    EXPECT_EQ(parseTableStyle("").columnStyle, std::string(23, '>'));
    EXPECT_EQ(defaultTableStyle().tableStyle, 1);
    EXPECT_EQ(defaultTableStyle().columnStyle, std::string(23, '>'));
}

TEST(TableStyle, ColumnsAreCountedInCharacters) {
    EXPECT_FALSE(rightAligned("à>", 1));
    EXPECT_TRUE(rightAligned("à>", 2));
}

}  // namespace
}  // namespace korven::markup
