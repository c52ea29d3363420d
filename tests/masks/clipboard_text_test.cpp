#include "masks/clipboard_text.hpp"

#include <gtest/gtest.h>

namespace korven::masks {
namespace {

using Righe = std::vector<std::vector<std::string>>;

TEST(RigheAppunti, EndAtCrLfOrLfAndCellsAtTabs) {
    EXPECT_EQ(righeAppunti("1\t2\r\n3\t4"), (Righe{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(righeAppunti("1\t2\n3"), (Righe{{"1", "2"}, {"3"}}));
    EXPECT_EQ(righeAppunti("\t\r\n\r\nx"), (Righe{{"", ""}, {""}, {"x"}}));
}

TEST(RigheAppunti, OpenNoRowAfterTheLastLineBreak) {
    EXPECT_EQ(righeAppunti("1\r\n2\r\n"), (Righe{{"1"}, {"2"}}));
    EXPECT_TRUE(righeAppunti("").empty());
    EXPECT_EQ(righeAppunti("\n"), (Righe{{""}}));
}

TEST(AnteprimaAppunti, ShowsUpToFiveLineBreaksWhole) {
    const std::string cinque = "1\r\n2\r\n3\r\n4\r\n5\r\n6";
    EXPECT_EQ(anteprimaAppunti(cinque), cinque);
}

TEST(AnteprimaAppunti, IsCutAfterTheSixthLineBreak) {
    EXPECT_EQ(anteprimaAppunti("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8"),
              "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n......");
}

}  // namespace
}  // namespace korven::masks
