#include "tools/string_literals.hpp"

#include <gtest/gtest.h>

namespace korven::tools {
namespace {

using Texts = std::vector<std::string>;

TEST(StringLiterals, JoinsNeighboursAcrossLinesAndComments) {
    EXPECT_EQ(stringLiterals("f(\"uno \"\n   // why\n  \"due\", \"tre\");"),
              (Texts{"uno due", "tre"}));
    EXPECT_EQ(stringLiterals("c ? \"a\" : \"b\""), (Texts{"a", "b"}));
}

TEST(StringLiterals, LeavesOutIncludesCommentsAndCharacters) {
    EXPECT_EQ(
        stringLiterals("#include \"base/a.hpp\"\n// \"no\"\nx = '\"'; y = '\\''; z = \"si\";"),
        Texts{"si"});
}

TEST(StringLiterals, TakesAQuoteInANumberForNoCharacter) {
    EXPECT_EQ(stringLiterals("n = 10'000; s = \"uno\"; m = 1'0;"), Texts{"uno"});
}

TEST(StringLiterals, KeepsEscapesAndDoesNotEndAtAnEscapedQuote) {
    EXPECT_EQ(stringLiterals("\"a \\\"b\\\" c\" \"\\n\""), Texts{"a \\\"b\\\" c\\n"});
}

}  // namespace
}  // namespace korven::tools
