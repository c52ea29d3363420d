#include "document/line_breaking.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"

namespace korven::document {
namespace {

using Righe = std::vector<std::string>;

// Each character is 1 wide, whatever the font.
class Uno : public MisuraCaratteri {
 public:
    [[nodiscard]] double larghezza(std::string_view testo, const Carattere&) const override {
        return static_cast<double>(base::numeroCaratteri(testo));
    }
};
const Uno uno;

TEST(InRighe, BreaksAtBlanksAndAtLineFeeds) {
    EXPECT_EQ(inRighe("uno due tre", 7, {}, uno), (Righe{"uno due", "tre"}));
    EXPECT_EQ(inRighe("uno  due\n\ntre ", 20, {}, uno), (Righe{"uno due", "", "tre"}));
    EXPECT_EQ(inRighe("", 20, {}, uno), (Righe{""}));
    EXPECT_EQ(inRighe("però così", 4, {}, uno), (Righe{"però", "così"}));
}

TEST(InRighe, BreaksAWordThatNoLineHoldsBehindASignOrAnywhere) {
    EXPECT_EQ(inRighe("il a/bcd/efghi", 6, {}, uno), (Righe{"il", "a/bcd/", "efghi"}));
    EXPECT_EQ(inRighe("abcdefgh i", 3, {}, uno), (Righe{"abc", "def", "gh", "i"}));
    EXPECT_EQ(inRighe("ééé", 0.5, {}, uno), (Righe{"é", "é", "é"})) << "no character is parted";
}

TEST(InRighe, LeavesANumberBesideItsUnitWhereALineHoldsBoth) {
    EXPECT_EQ(inRighe("al più 0.74 kN m/m, qui", 12, {}, uno),
              (Righe{"al più", "0.74 kN m/m,", "qui"}));
    EXPECT_EQ(inRighe("meno di 20 % di", 10, {}, uno), (Righe{"meno di", "20 % di"}));
    EXPECT_EQ(inRighe("fino a 3 mesi", 8, {}, uno), (Righe{"fino a 3", "mesi"})) << "no unit";
    EXPECT_EQ(inRighe("0.74 kN m/m", 8, {}, uno), (Righe{"0.74 kN", "m/m"}));
}

TEST(InRigheFisse, KeepsBlanksAndSetsInWhatGoesOn) {
    EXPECT_EQ(inRigheFisse("  a  b\r\n\n1.5", 10, {}, uno), (Righe{"  a  b", "", "1.5"}));
    EXPECT_EQ(inRigheFisse("0123456789abcdefgh", 10, {}, uno),
              (Righe{"0123456789", "    abcdef", "    gh"}));
}

TEST(InRigheFisse, CutsBesideNoBlank) {
    EXPECT_EQ(inRigheFisse("012345678 abcd", 10, {}, uno), (Righe{"01234567", "    8 abcd"}));
    EXPECT_EQ(inRigheFisse("0123456789 abc", 10, {}, uno), (Righe{"012345678", "    9 abc"}));
    EXPECT_EQ(inRigheFisse("01234567\u00e9 b", 9, {}, uno), (Righe{"01234567", "    \u00e9 b"}));
    EXPECT_EQ(inRigheFisse("a           b", 5, {}, uno).front(), "a    ") << "nowhere else";
}

TEST(Accorciato, EndsWithDotsWhatDoesNotFit) {
    EXPECT_EQ(accorciato("muro.kvd", 8, {}, uno), "muro.kvd");
    EXPECT_EQ(accorciato("perché no", 7, {}, uno), "perché…");
}

TEST(ParolaPiuLarga, IsTheWidestOfAllLines) {
    EXPECT_EQ(parolaPiuLarga("uno quattro\ncinque", {}, uno), 7);
    EXPECT_EQ(parolaPiuLarga("", {}, uno), 0);
    EXPECT_EQ(parolaPiuLarga("e 1.5 kN m/m qui", {}, uno), 10);
}

}  // namespace
}  // namespace korven::document
