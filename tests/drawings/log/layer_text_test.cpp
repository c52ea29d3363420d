#include "drawings/log/layer_text.hpp"

#include <gtest/gtest.h>

namespace korven::drawings {
namespace {

// Without a program folder a pattern is its number.
TEST(TestoStrato, HasWordsForTheCodeAndALineForEachPart) {
    EXPECT_EQ(testoStrato("102 Riporto vario.|Macerie."),
              "Riporto vario.\nMacerie.\n[campitura: 2]");
    EXPECT_EQ(testoStrato("-107105C5 Argilla molle"), "Argilla molle\n[campitura: 5, 7]");
}

TEST(TestoStrato, KeepsAFirstWordThatIsNoCode) {
    EXPECT_EQ(testoStrato("Sabbia densa|fine"), "Sabbia densa\nfine");
}

TEST(TestoStrato, NamesNoPatternWhereNoneIsDrawn) {
    EXPECT_EQ(testoStrato("0 Sabbia"), "Sabbia");
    EXPECT_EQ(testoStrato("105"), "[campitura: 5]");
    EXPECT_EQ(testoStrato(""), "");
}

}  // namespace
}  // namespace korven::drawings
