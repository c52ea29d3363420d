#include "markup/print_renderer.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/dialog_double.hpp"
#include "support/page_record.hpp"
#include "support/temporary_folder.hpp"

// Pages and lines; tables and lists in print_blocks_test.cpp. The sheet is an A4 of 566 x 813
// usable points, a centimetre has 28.3465 of them, and 2 cm are 56 whole ones.

namespace korven::markup {
namespace {

using Lines = std::vector<std::string>;
using test::PageRecord;
using test::printed;

const std::string reset = "#RESET 2,2,2,2,2,2,12,Arial";

Lines document(const Lines& body, const std::string& open = reset) {
    Lines lines{open, "#HEADER Head", "#FOOTER Foot!"};
    lines.insert(lines.end(), body.begin(), body.end());
    lines.emplace_back("#ENDDOCUMENT");
    return lines;
}

PageRecord::Text find(const PageRecord& record, const std::string& text) {
    for (const auto& written : record.texts)
        if (written.text == text) return written;
    ADD_FAILURE() << text << " was not written";
    return {};
}

Lines many(int count, const std::string& line) {
    return Lines(static_cast<std::size_t>(count), line);
}

TEST(PrintRenderer, WithoutResetPrintsNothing) {
    EXPECT_TRUE(printed({"#HEADER h", "text", "#STARTTABLE", "a\tb", "#ENDTABLE", "#ENDDOCUMENT"})
                    .calls.empty());
}

TEST(PrintRenderer, UnknownDirectivesNeverAppear) {
    EXPECT_EQ(printed(document({"#1 primo muro", "#", "x"})).onPage(1), "Head|x|Foot!");
}

TEST(PrintRenderer, CentresHeaderAndFooterInTheirFontBetweenTheMargins) {
    const auto record = printed(document({"#FONTSIZE 10", "x"}));
    const auto head = find(record, "Head");
    EXPECT_DOUBLE_EQ(head.x, (566 - 56 - 56 - 24) / 2.0 + 56);
    EXPECT_DOUBLE_EQ(head.y, 56);
    EXPECT_EQ(head.font, (ReportFont{"Arial", 12, false, false}));
    const auto foot = find(record, "Foot!");
    EXPECT_DOUBLE_EQ(foot.x, (566 - 56 - 56 - 30) / 2.0 + 56);
    EXPECT_DOUBLE_EQ(foot.y, 813 - 56 - 12);
    EXPECT_EQ(foot.font.size, 12);
}

TEST(PrintRenderer, StartsTheBodyBelowHeaderAndGapInTheBodyFont) {
    const auto record = printed(document({"#FONTSIZE 10", "#FONT Times", "one", "two"}));
    EXPECT_DOUBLE_EQ(find(record, "one").y, 56 + 12 + 56);
    EXPECT_DOUBLE_EQ(find(record, "two").y, 124 + 12);
    EXPECT_EQ(find(record, "one").font, (ReportFont{"Times", 10, false, false}));
    EXPECT_EQ(find(record, "Foot!").font.name, "Arial");
}

TEST(PrintRenderer, PrintsTheBodyInTheHeaderFontUntilToldOtherwise) {
    EXPECT_EQ(find(printed(document({"x"})), "x").font, (ReportFont{"Arial", 12, false, false}));
}

TEST(PrintRenderer, AlignsTextLines) {
    const auto record =
        printed(document({"#FONTSIZE 10", "left", "#CENTER", "mid", "#RIGHT", "right"}));
    EXPECT_DOUBLE_EQ(find(record, "left").x, 56);
    EXPECT_DOUBLE_EQ(find(record, "mid").x, (454 - 15) / 2.0 + 56);
    EXPECT_DOUBLE_EQ(find(record, "right").x, 454 - 25 + 56);
}

TEST(PrintRenderer, TurnsItalicsOnAndOffAlsoForTheHeader) {
    const auto record =
        printed(document({"#FONTITALIC true", "one", "#NEWPAGE", "#FONTITALIC no", "two"}));
    EXPECT_TRUE(find(record, "one").font.italic);
    EXPECT_FALSE(find(record, "two").font.italic);
    EXPECT_TRUE(record.texts[2].font.italic);  // the footer of page 1
}

TEST(PrintRenderer, BreaksThePageBeforeALineBelowTheLimit) {
    // At size 10 the limit is 813 - 56 - 56 - 10 = 691: line 48 begins at 688, line 49 at 700.
    auto body = many(49, "x");
    body.insert(body.begin(), "#FONTSIZE 10");
    const auto record = printed(document(body));
    EXPECT_EQ(record.page, 2);
    EXPECT_EQ(record.onPage(2), "Head|x|Foot!");
    EXPECT_DOUBLE_EQ(record.texts[48].y, 688);
    EXPECT_EQ(record.texts[49].text, "Foot!");
    EXPECT_DOUBLE_EQ(record.texts[51].y, 124);
    body.pop_back();
    EXPECT_EQ(printed(document(body)).page, 1);
}

TEST(PrintRenderer, LetsALineBeginAtTheLimitItself) {
    PageRecord low;
    low.size.height = 72.6;  // 44 usable: the limit of lines at 10, 22, 34 is 34
    const auto record = printed(document({"a", "b", "c", "d"}, "#RESET 0,0,0,0,0,0,10,Arial"), low);
    EXPECT_EQ(record.onPage(1), "Head|a|b|c|Foot!");
    EXPECT_EQ(record.onPage(2), "Head|d|Foot!");
}

TEST(PrintRenderer, SwallowsBlankLinesAtTheHeadOfAPage) {
    const auto record = printed(document({"", "", "one", "", "two", "#NEWPAGE", "", "three"}));
    EXPECT_DOUBLE_EQ(find(record, "one").y, 124);
    EXPECT_DOUBLE_EQ(find(record, "two").y, 124 + 2 * 14.4);
    EXPECT_DOUBLE_EQ(find(record, "three").y, 124);
}

// It is looked at for blanks before it is looked at for its place.
TEST(PrintRenderer, KeepsTheBlankLineThatBreaksThePage) {
    auto body = many(48, "x");
    body.insert(body.begin(), "#FONTSIZE 10");
    body.insert(body.end(), {"", "after"});
    const auto record = printed(document(body));
    EXPECT_EQ(find(record, "after").page, 2);
    EXPECT_DOUBLE_EQ(find(record, "after").y, 124 + 12);
}

TEST(PrintRenderer, NewPageClosesThePageAndHeadsTheNext) {
    const auto record = printed(document({"one", "#NEWPAGE", "two"}));
    EXPECT_EQ(record.calls,
              (Lines{"start", "write Head", "write one", "write Foot!", "end", "start",
                     "write Head", "write two", "write Foot!", "end", "job"}));
}

// The header is due with the first line, and a page break does not count as one.
TEST(PrintRenderer, NewPageBeforeTheFirstLineHeadsTheNextPageTwice) {
    const auto record = printed(document({"#NEWPAGE", "one"}));
    EXPECT_EQ(record.onPage(1), "Foot!");
    EXPECT_EQ(record.onPage(2), "Head|Head|one|Foot!");
    EXPECT_DOUBLE_EQ(find(record, "one").y, 124);
}

TEST(PrintRenderer, NewParagraphBreaksOnlyIfItsHeightIsNotLeft) {
    // After two lines of 12 points y is 152.8; the limit is 813 - 56 - 56 - 12 = 689.
    EXPECT_EQ(printed(document({"a", "b", "#NEWPARAGRAPH 18.9", "c"})).page, 1);   // 689 - 535.7
    EXPECT_EQ(printed(document({"a", "b", "#NEWPARAGRAPH 18.95", "c"})).page, 2);  // 689 - 537.2
    EXPECT_EQ(printed(document({"a", "b", "#NEWPARAGRAPH", "c"})).page, 1);
    EXPECT_EQ(printed(document({"a", "b", "#NEWPARAGRAPH x", "c"})).page, 1);
}

TEST(PrintRenderer, FurtherResetStartsOverOnTheSamePage) {
    const auto record = printed(document({"one", "#RESET 1,1,1,1,1,1,10,Times", "two"}));
    EXPECT_EQ(record.page, 1);
    EXPECT_EQ(record.onPage(1), "Head|one|Head|two|Foot!");
    EXPECT_DOUBLE_EQ(find(record, "two").y, 28 + 10 + 28);
    EXPECT_EQ(find(record, "two").font, (ReportFont{"Times", 10, false, false}));
}

TEST(PrintRenderer, ResetOfTwoFieldsGivesMarginsAlone) {
    const auto record = printed(document({"one"}, "#RESET 2,2"));
    EXPECT_DOUBLE_EQ(find(record, "one").x, 56);
    EXPECT_DOUBLE_EQ(find(record, "one").y, 0);
    EXPECT_EQ(find(record, "one").font, (ReportFont{"", 0, false, false}));
}

TEST(PrintRenderer, EmptyDocumentIsAPageWithItsFooter) {
    EXPECT_EQ(printed(document({})).calls, (Lines{"start", "write Foot!", "end", "job"}));
}

TEST(PrintRenderer, StartsAPageThoughNothingIsWrittenOnIt) {
    EXPECT_EQ(printed({reset, "#ENDDOCUMENT"}).calls, (Lines{"start", "end", "job"}));
}

TEST(PrintRenderer, TwoDocumentsAreTwoJobs) {
    auto lines = document({"one"});
    const auto second = document({"two"});
    lines.insert(lines.end(), second.begin(), second.end());
    EXPECT_EQ(printed(lines).calls,
              (Lines{"start", "write Head", "write one", "write Foot!", "end", "job", "start",
                     "write Head", "write two", "write Foot!", "end", "job"}));
}

TEST(PrintRenderer, HandsOverADocumentThatIsNeverClosed) {
    EXPECT_EQ(printed({reset, "one"}).calls, (Lines{"start", "write one", "end", "job"}));
    EXPECT_TRUE(printed({reset}).calls.empty());
}

TEST(PrintReport, ShowsTheWaitingPointerMeanwhile) {
    const test::CartellaProvvisoria folder;
    test::metti(folder / "r.TAB", test::markup(document({"one"})));
    test::DialogoFinto dialog;
    PageRecord record;
    printReport(folder / "r.TAB", record, dialog);
    EXPECT_EQ(record.onPage(1), "Head|one|Foot!");
    EXPECT_EQ(dialog.puntatori,
              (std::vector{base::Puntatore::clessidra, base::Puntatore::normale}));
}

TEST(PrintReport, DoesNothingWithoutAFile) {
    const test::CartellaProvvisoria folder;
    test::DialogoFinto dialog;
    PageRecord record;
    printReport(folder / "r.TAB", record, dialog);
    EXPECT_TRUE(record.calls.empty());
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST(PrintReport, RefusesATableBeyondTheGridAndGivesThePointerBack) {
    const test::CartellaProvvisoria folder;
    Lines body{"#STARTTABLE"};
    for (int row = 1; row <= 511; ++row) body.emplace_back("a\tb");
    body.emplace_back("#ENDTABLE");
    test::metti(folder / "r.TAB", test::markup(document(body)));
    test::DialogoFinto dialog;
    dialog.puntatore(base::Puntatore::clessidra);
    PageRecord record;
    EXPECT_THROW(printReport(folder / "r.TAB", record, dialog), base::ErroreFile);
    EXPECT_EQ(dialog.ultimoPuntatore(), base::Puntatore::normale);
}

}  // namespace
}  // namespace korven::markup
