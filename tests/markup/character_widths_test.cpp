#include "markup/character_widths.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace korven::markup {
namespace {

TEST(CharacterWidths, SumUpAndAskForEachCharacterOnce) {
    std::vector<std::string> asked;
    CharacterWidths widths([&](std::string_view character) {
        asked.emplace_back(character);
        return character == "m" ? 8.0 : character == "³" ? 3.0 : 5.0;
    });
    EXPECT_DOUBLE_EQ(widths(""), 0);
    EXPECT_DOUBLE_EQ(widths("kN/m³"), 26);
    EXPECT_DOUBLE_EQ(widths("m³ m³"), 27);
    EXPECT_EQ(asked, (std::vector<std::string>{"k", "N", "/", "m", "³", " "}));
}

}  // namespace
}  // namespace korven::markup
