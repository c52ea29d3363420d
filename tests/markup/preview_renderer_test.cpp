#include "markup/preview_renderer.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/page_record.hpp"
#include "support/temporary_folder.hpp"

// The list has 500 usable points and characters of 5; a centimetre has 28.3465 points.

namespace korven::markup {
namespace {

using Lines = std::vector<std::string>;
using test::previewed;

const Lines head{std::string(48, ' ') + "Head", ""};  // (500 - 20) / 2 = 240
const Lines foot{"", std::string(48, ' ') + "Foot"};

Lines document(const Lines& body) {
    Lines lines{"#RESET 2,2,2,2,2,2,12,Arial", "#HEADER Head", "#FOOTER Foot"};
    lines.insert(lines.end(), body.begin(), body.end());
    lines.emplace_back("#ENDDOCUMENT");
    return lines;
}

// What the body becomes between header and footer.
Lines shown(const Lines& body) {
    Lines lines = previewed(document(body));
    EXPECT_GE(lines.size(), 4u);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 2), head);
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()), foot);
    return {lines.begin() + 2, lines.end() - 2};
}

TEST(PreviewRenderer, WithoutResetShowsNothing) {
    EXPECT_TRUE(previewed({"#HEADER h", "text", "#ENDDOCUMENT"}).empty());
}

TEST(PreviewRenderer, CentresHeaderAndFooterOnceWithAnEmptyLineBeside) {
    EXPECT_EQ(shown({"one", "", "two"}), (Lines{"one", "", "two"}));
}

TEST(PreviewRenderer, UnknownDirectivesNeverAppear) {
    EXPECT_EQ(shown({"#1 primo muro", "#", "x"}), Lines{"x"});
}

TEST(PreviewRenderer, PadsToTheFirstBlankThatReachesThePlace) {
    // 242.5 points: 49 blanks; 485 points: 97.
    EXPECT_EQ(shown({"left", "#CENTER", "mid", "#RIGHT", "end"}),
              (Lines{"left", std::string(49, ' ') + "mid", std::string(97, ' ') + "end"}));
}

TEST(PreviewRenderer, NeverPaginates) {
    const auto lines = shown(Lines(2000, "x"));
    EXPECT_EQ(lines, Lines(2000, "x"));
    EXPECT_EQ(shown({"one", "#NEWPAGE", "#NEWPARAGRAPH 100", "", "two"}),
              (Lines{"one", "", "two"}));
}

TEST(PreviewRenderer, AlignsTheColumnsOfATableRightWhateverTheirStyle) {
    // Widths 25 and 25: cells end at 25 + 7.09 -> 35 and at 39.17 + 25 + 7.09 -> 75.
    const Lines expected{"  Prof.      ks", "    1.0     abc", "    2.5   -3.25"};
    EXPECT_EQ(shown({"#STARTTABLE", "Prof.\tks", "1\tabc", "2.5\t-3.25", "#ENDTABLE"}), expected);
    EXPECT_EQ(
        shown({"#TABSTYLE <<", "#STARTTABLE", "Prof.\tks", "1\tabc", "2.5\t-3.25", "#ENDTABLE"}),
        expected);
}

// The blanks after a cell are measured with the cell a second time: only where that is short of the
// next column do they come, so after an empty cell.
TEST(PreviewRenderer, PadsAfterACellThatIsNarrowerThanTheGap) {
    // Column 1 is 25 wide. After "abcde" 35 + 25 is enough for 39.17; after nothing 35 is not.
    const auto lines = shown({"#STARTTABLE", "abcde\tb", "\tb", "#ENDTABLE"});
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], "  abcde   b");  // 39.17 + 5 + 7.09 = 51.26 -> 55
    EXPECT_EQ(lines[1], "          b");  // 40 after column 1, then 2 blanks to 55
}

TEST(PreviewRenderer, PlacesATableWholeByTheAlignment) {
    // One column of 15: 29.17 with its gap, begins at 235.41 -> 240. The cell ends at or after
    // 235.41 + 22.09 = 257.5 -> 260.
    EXPECT_EQ(shown({"#CENTER", "#STARTTABLE", "aaa", "#ENDTABLE"}),
              Lines{std::string(49, ' ') + "aaa"});
    // Right: 465.83 -> 94 blanks (470); 465.83 + 27.09 = 492.91 -> 470 + 20 + 5 = 495.
    EXPECT_EQ(shown({"#RIGHT", "#STARTTABLE", "aaaa", "#ENDTABLE"}),
              Lines{std::string(95, ' ') + "aaaa"});
}

TEST(PreviewRenderer, WiderThanTheWindowBeginsAtItsEdge) {
    const std::string wide(150, 'x');
    EXPECT_EQ(shown({"#CENTER", wide}), Lines{wide});
}

TEST(PreviewRenderer, LeadsFromLabelToValueByPoints) {
    // Column 1: 45 + 14.17 = 59.17 -> 60. Column 2 ends at 73.35 + 30 - 7.09 = 96.26 -> 100.
    EXPECT_EQ(shown({"#STARTLIST", "Lunghezza\t12", "EJ\t5.25", "Spinta\t100.5", "#ENDLIST"}),
              (Lines{"Lunghezza ..   12.00", "EJ .........    5.25", "Spinta .....  100.50"}));
}

TEST(PreviewRenderer, CountsTheRowsOfATableAsLines) {
    EXPECT_EQ(shown({"#STARTTABLE", "a", "b", "#ENDTABLE", "text"}).size(), 3u);
}

TEST(PreviewRenderer, ShowsTheRowsAgainAtAFurtherEnd) {
    EXPECT_EQ(shown({"#STARTTABLE", "a", "#ENDTABLE", "#ENDTABLELEFTALIGN"}),
              (Lines{"  a", "  a"}));
    EXPECT_EQ(shown({"x", "#ENDTABLE"}), Lines{"x"});
}

TEST(PreviewRenderer, FurtherResetShowsTheHeaderAgain) {
    EXPECT_EQ(shown({"#CENTER", "one", "#RESET", "two"}),
              (Lines{std::string(49, ' ') + "one", head[0], "", "two"}));
}

TEST(PreviewReport, AddsAfterTheLinesOfAnEarlierRun) {
    const test::CartellaProvvisoria folder;
    test::metti(folder / "r.TAB", test::markup(document({"one"})));
    test::ListRecord list;
    previewReport(folder / "r.TAB", list);
    previewReport(folder / "r.TAB", list);
    EXPECT_EQ(list.lines.size(), 10u);
}

TEST(PreviewReport, DoesNothingWithoutAFileAndRefusesATooLargeTable) {
    const test::CartellaProvvisoria folder;
    test::ListRecord list;
    previewReport(folder / "r.TAB", list);
    EXPECT_TRUE(list.lines.empty());
    test::metti(folder / "r.TAB",
                test::markup(document({"#STARTTABLE", std::string(30, '\t'), "#ENDTABLE"})));
    EXPECT_THROW(previewReport(folder / "r.TAB", list), base::ErroreFile);
}

}  // namespace
}  // namespace korven::markup
