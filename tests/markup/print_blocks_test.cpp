// Tables and lists of the print renderer, at size 10: a character is 5 points wide, 6 in bold, and
// a line takes 12. The body of a page begins at 124 and has its limit at 691.

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/page_record.hpp"

namespace korven::markup {
namespace {

using Lines = std::vector<std::string>;
using test::PageRecord;
using test::printed;

constexpr double u = 72 / 2.54;
constexpr double tolerance = 1e-9;

Lines document(const Lines& body) {
    Lines lines{"#RESET 2,2,2,2,2,2,12,Arial", "#HEADER Head", "#FOOTER Foot", "#FONTSIZE 10"};
    lines.insert(lines.end(), body.begin(), body.end());
    lines.emplace_back("#ENDDOCUMENT");
    return lines;
}

Lines block(const std::string& start, const Lines& rows, const std::string& end) {
    Lines lines{start};
    lines.insert(lines.end(), rows.begin(), rows.end());
    lines.push_back(end);
    return lines;
}

Lines table(const Lines& rows) { return block("#STARTTABLE", rows, "#ENDTABLE"); }
Lines list(const Lines& rows) { return block("#STARTLIST", rows, "#ENDLIST"); }

Lines operator+(Lines one, const Lines& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

Lines numbered(int rows) {
    Lines lines{"head"};
    for (int row = 2; row <= rows; ++row) lines.push_back("r" + std::to_string(row));
    return lines;
}

TEST(PrintedTable, AlignsItsColumnsRightAndItsHeadInBold) {
    const auto record = printed(document(table({"Prof.\tks", "1\tabc", "2.5\t-3.25"})));
    // Widths 25 and 25: "Prof." and "-3.25".
    ASSERT_EQ(record.onPage(1), "Head|Prof.|ks|1.0|abc|2.5|-3.25|Foot");
    const auto& texts = record.texts;
    EXPECT_TRUE(texts[1].font.bold);
    EXPECT_TRUE(texts[2].font.bold);
    EXPECT_FALSE(texts[3].font.bold);
    EXPECT_NEAR(texts[1].x, 56 + 25 + 0.25 * u - 30, tolerance);  // wider in bold: sticks out
    EXPECT_NEAR(texts[2].x, 56 + 25 + 0.5 * u + 25 + 0.25 * u - 12, tolerance);
    EXPECT_NEAR(texts[3].x, 56 + 25 + 0.25 * u - 15, tolerance);
    EXPECT_NEAR(texts[4].x, 56 + 25 + 0.5 * u + 25 + 0.25 * u - 15, tolerance);
    EXPECT_NEAR(texts[6].x, 56 + 25 + 0.5 * u + 0.25 * u, tolerance);
    EXPECT_DOUBLE_EQ(texts[1].y, 124);
    EXPECT_DOUBLE_EQ(texts[2].y, 124);
    EXPECT_DOUBLE_EQ(texts[3].y, 136);
    EXPECT_DOUBLE_EQ(texts[5].y, 148);
}

TEST(PrintedTable, AlignsLeftTheColumnsThatTheStyleNames) {
    const auto record =
        printed(document(Lines{"#TABSTYLE =<<<"} + table({"aaaa\tb\tc\tdddd", "a\tb\tc\td"})));
    ASSERT_EQ(record.onPage(1), "Head|aaaa|b|c|dddd|a|b|c|d|Foot");
    EXPECT_NEAR(record.texts[5].x, 56 + 0.25 * u, tolerance);
    EXPECT_NEAR(record.texts[6].x, 56 + 20 + 0.5 * u + 0.25 * u, tolerance);
    // Columns of 20, 5, 5 and 20; the fourth is aligned right.
    EXPECT_NEAR(record.texts[8].x, 56 + 30 + 1.5 * u + 0.25 * u + 15, tolerance);
}

TEST(PrintedTable, IsPlacedWholeByTheAlignment) {
    const double total = 20 + 5 + u;  // two columns with their gaps
    const auto centred = printed(document(Lines{"#CENTER"} + table({"aaaa\tb", "a\tb"})));
    EXPECT_NEAR(centred.texts[3].x, (454 - total) / 2 + 56 + 0.25 * u + 15, tolerance);
    const auto right = printed(document(Lines{"#RIGHT"} + table({"aaaa\tb", "a\tb"})));
    EXPECT_NEAR(right.texts[3].x, 454 - total + 56 + 0.25 * u + 15, tolerance);
}

TEST(PrintedTable, WiderThanThePageRunsOverTheMargin) {
    const std::string cell(60, 'x');  // 300 points
    const auto record = printed(document(table({"a\tb", cell + '\t' + cell})));
    EXPECT_NEAR(record.texts[4].x, 56 + 300 + 0.75 * u, tolerance);
    EXPECT_GT(record.texts[4].x + 300, 566);
}

TEST(PrintedTable, LosesTheColumnsThatItsLastRowLacks) {
    EXPECT_EQ(printed(document(table({"a\tb\tc", "d\te\tf", "g\th"}))).onPage(1),
              "Head|a|b|d|e|g|h|Foot");
}

TEST(PrintedTable, ShowsWhatAnEarlierOneLeftWhereARowIsShort) {
    EXPECT_EQ(printed(document(table({"a\tb", "1\t2.5"}) + table({"c", "d\te"}))).onPage(1),
              "Head|a|b|1|2.5|c|b|d|e|Foot");
}

TEST(PrintedTable, RepeatsItsHeadOnEveryPage) {
    // 48 rows on the first page; head and 47 rows on the next ones.
    const auto record = printed(document(table(numbered(97))));
    EXPECT_EQ(record.page, 3);
    EXPECT_TRUE(record.onPage(1).ends_with("|r48|Foot"));
    EXPECT_TRUE(record.onPage(2).starts_with("Head|head|r49|"));
    EXPECT_TRUE(record.onPage(2).ends_with("|r95|Foot"));
    EXPECT_EQ(record.onPage(3), "Head|head|r96|r97|Foot");
    for (const auto& text : record.texts)
        EXPECT_EQ(text.font.bold, text.text == "head") << text.text;
    const auto& repeated = record.texts[51];
    EXPECT_EQ(repeated.text, "head");
    EXPECT_DOUBLE_EQ(repeated.y, 124);
    EXPECT_DOUBLE_EQ(repeated.x, record.texts[1].x);
}

TEST(PrintedTable, DoesNotRepeatItsHeadAboveNothing) {
    const auto record = printed(document(table(numbered(48))));
    EXPECT_EQ(record.page, 2);
    EXPECT_EQ(record.onPage(2), "Head|Foot");
}

TEST(PrintedTable, RepeatsItsHeadWithTheStyleOfItsColumns) {
    Lines rows{"ab\tc"};
    for (int row = 2; row <= 60; ++row) rows.emplace_back("xxxx\tyyyy");
    const auto record = printed(document(Lines{"#TABSTYLE <>"} + table(rows)));
    const auto& texts = record.texts;
    const auto repeated = std::find_if(texts.begin() + 2, texts.end(),
                                       [](const auto& text) { return text.text == "ab"; });
    ASSERT_NE(repeated, texts.end());
    EXPECT_EQ(repeated->page, 2);
    EXPECT_NEAR(repeated->x, 56 + 0.25 * u, tolerance);
    EXPECT_NEAR((repeated + 1)->x, 56 + 20 + 0.75 * u + 20 - 6, tolerance);
}

TEST(PrintedTable, PrintsTheHeaderWhenItIsTheFirstOfTheDocument) {
    EXPECT_EQ(printed(document(table({"a", "b"}) + Lines{"text"})).onPage(1), "Head|a|b|text|Foot");
}

TEST(PrintedTable, MakesABlankLineAfterItCount) {
    const auto record = printed(document(table({"a", "b"}) + Lines{"", "text"}));
    EXPECT_DOUBLE_EQ(record.texts[3].y, 124 + 3 * 12);
    // Also one that has no rows at all.
    const auto none = printed(document(Lines{"one", "#NEWPAGE", "#ENDTABLE", "", "text"}));
    EXPECT_DOUBLE_EQ(none.texts[4].y, 124 + 12);
}

TEST(PrintedTable, IsPrintedAgainByAFurtherEnd) {
    EXPECT_EQ(printed(document(table({"a", "b"}) + Lines{"#ENDTABLENOITALIC"})).onPage(1),
              "Head|a|b|a|b|Foot");
}

TEST(PrintedTable, KeepsItsRowsThroughADirectiveThatEndsIt) {
    EXPECT_EQ(
        printed(document({"#STARTTABLE", "a", "#FONTSIZE 10", "text", "#ENDTABLE"})).onPage(1),
        "Head|text|a|Foot");
}

TEST(PrintedTable, MayHave510RowsAnd30ColumnsAndNoMore) {
    EXPECT_NO_THROW((void)printed(document(table(numbered(510)))));
    EXPECT_THROW((void)printed(document(table(numbered(511)))), base::ErroreFile);
    EXPECT_NO_THROW((void)printed(document(table({std::string(29, '\t')}))));
    EXPECT_THROW((void)printed(document(table({std::string(30, '\t')}))), base::ErroreFile);
    EXPECT_THROW((void)printed(document(table(numbered(2001)))), base::ErroreFile);
}

TEST(PrintedList, LeadsFromLabelToValueByPoints) {
    const auto record = printed(document(list({"Lunghezza\t12", "EJ\t5.25"})));
    // Column 1: 45 + 14.17 = 59.17, so labels of 12 characters; column 2: "12.00" and "5.25".
    ASSERT_EQ(record.onPage(1), "Head|Lunghezza ..|12.00|EJ .........|5.25|Foot");
    const double width1 = 45 + 0.5 * u;
    EXPECT_NEAR(record.texts[1].x, 56 + 0.25 * u, tolerance);
    EXPECT_NEAR(record.texts[2].x, 56 + width1 + 0.5 * u + 0.25 * u, tolerance);
    EXPECT_NEAR(record.texts[4].x, 56 + width1 + 0.5 * u + 0.25 * u + 5, tolerance);
    for (const auto& text : record.texts) EXPECT_FALSE(text.font.bold) << text.text;
}

TEST(PrintedList, TakesNoNoticeOfTheColumnStyle) {
    const auto record = printed(document(Lines{"#TABSTYLE <<"} + list({"a\t1", "b\t200"})));
    EXPECT_NEAR(record.texts[2].x, 56 + 5 + 0.5 * u + 0.75 * u + 10, tolerance);
}

TEST(PrintedList, NeverRepeatsARow) {
    const auto record = printed(document(list(numbered(60))));
    EXPECT_EQ(record.page, 2);
    EXPECT_TRUE(record.onPage(2).starts_with("Head|r49 ")) << record.onPage(2);
}

}  // namespace
}  // namespace korven::markup
