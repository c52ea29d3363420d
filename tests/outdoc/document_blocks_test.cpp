#include "outdoc/document_blocks.hpp"

#include <gtest/gtest.h>

#include "markup/estimated_width.hpp"
#include "outdoc/document_page.hpp"

namespace korven::outdoc {
namespace {

using markup::Alignment;
using markup::CellGrid;
using markup::FittedTable;

constexpr double u = 72 / 2.54;
const markup::ReportFont font{"Courier New", 10, false, false};  // 6 points a character

FittedTable fitted(CellGrid& grid, const std::vector<std::string>& rows,
                   markup::BlockKind kind = markup::BlockKind::table) {
    markup::ScanState state;
    for (const auto& row : rows) state.rows[++state.rowCount] = row;
    grid.fill(state);
    return markup::fitColumns(
        grid, kind, [](std::string_view text) { return 6.0 * static_cast<double>(text.size()); });
}

int count(const std::string& text, std::string_view part) {
    int found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
    return found;
}

TEST(ColumnWidths, LeaveRoomForTheBoldHead) {
    CellGrid grid;
    const auto table = fitted(grid, {"head\tb", "1\t123456"});
    const auto widths = columnWidths(grid, table, font, 1000);
    EXPECT_DOUBLE_EQ(widths[0], 24 * 1.15 + 0.5 * u + 3);
    EXPECT_DOUBLE_EQ(widths[1], 36 + 0.5 * u + 3);
}

TEST(ColumnWidths, ShrinkToThePageInProportion) {
    CellGrid grid;
    const auto table = fitted(grid, {"a\tb", std::string(40, '1') + '\t' + std::string(80, 'x')});
    const auto widths = columnWidths(grid, table, font, 400);
    EXPECT_NEAR(widths[0] + widths[1], 400, 1e-9);
    EXPECT_NEAR(widths[1] / widths[0], (480 + 0.5 * u + 3) / (240 + 0.5 * u + 3), 1e-9);
}

TEST(ColumnWidths, BreakNoNumberForALongSentence) {
    CellGrid grid;
    std::string sentence;
    for (int i = 0; i < 30; ++i) sentence += "parole ";
    const auto table = fitted(grid, {"a\tb", "12345678\t" + sentence});
    const auto widths = columnWidths(grid, table, font, 300);
    EXPECT_NEAR(widths[0] + widths[1], 300, 1e-9);
    EXPECT_GE(widths[0], markup::estimatedWidth(font, "12345678") + 0.5 * u);
}

TEST(TableWords, RepeatTheBoldHeadAlone) {
    CellGrid grid;
    fitted(grid, {"a\tb", "1\t2", "3\t4"});
    const auto words = tableWords(grid, {50, 60}, Alignment::left, ">>", font);
    EXPECT_EQ(count(words, "<w:tr>"), 3);
    EXPECT_EQ(count(words, "<w:tblHeader/>"), 1);
    EXPECT_LT(words.find("<w:tblHeader/>"), words.find(">a</w:t>"));
    EXPECT_EQ(count(words, "<w:cantSplit/>"), 3);
    EXPECT_EQ(count(words, "<w:b/>"), 4);  // two cells, text and end of paragraph
    EXPECT_EQ(count(words, "<w:tcBorders>"), 4);
}

TEST(TableWords, AlignColumnsByTheirStyleAndTheTableByTheAlignment) {
    CellGrid grid;
    fitted(grid, {"a\tb"});
    const auto centred = tableWords(grid, {50, 60}, Alignment::centre, "<>", font);
    EXPECT_LT(centred.find("<w:jc w:val=\"center\"/>"), centred.find("<w:tblGrid>"));
    EXPECT_EQ(count(centred, "<w:jc w:val=\"left\"/>"), 1);
    EXPECT_EQ(count(centred, "<w:jc w:val=\"right\"/>"), 1);
    EXPECT_EQ(count(centred, "<w:tblInd"), 0);
    EXPECT_EQ(count(tableWords(grid, {50, 60}, Alignment::left, "<>", font), "<w:tblInd"), 1);
}

TEST(ListRow, LeadsToTheFirstValueByPoints) {
    CellGrid grid;
    const auto list = fitted(grid, {"abc\t1\t22"}, markup::BlockKind::list);
    const Paragraph row = listRow(list, Alignment::left, 400);
    EXPECT_DOUBLE_EQ(row.indent, 0.25 * u);
    ASSERT_EQ(row.tabs.size(), 2u);
    EXPECT_TRUE(row.tabs[0].dotted);
    EXPECT_FALSE(row.tabs[1].dotted);
    EXPECT_DOUBLE_EQ(row.tabs[0].position, 18 + 0.5 * u + 0.5 * u + 6 + 0.25 * u);
    EXPECT_DOUBLE_EQ(row.tabs[1].position, 24 + 1.5 * u + 12 + 0.25 * u);
}

TEST(ListRow, StaysWithinThePage) {
    CellGrid grid;
    const auto list = fitted(grid, {std::string(90, 'x') + "\t1"}, markup::BlockKind::list);
    const Paragraph row = listRow(list, Alignment::right, 400);
    EXPECT_DOUBLE_EQ(row.indent, 0.25 * u);
    EXPECT_DOUBLE_EQ(row.tabs[0].position, 400);
}

TEST(DocumentPage, TakesTheMarginsOfTheMarkup) {
    const auto page = documentPage("2,1.5,1,2,0.5,1,10,Arial");
    EXPECT_NEAR(page.textWidth(), 21 * u - 56 - 42, 1e-9);
    EXPECT_EQ(page.headerFont, (markup::ReportFont{"Arial", 10, false, false}));
    // Top: 28 + 12 + 14 points; bottom: 56 + 12 + 28.
    EXPECT_EQ(page.words(),
              "<w:pgSz w:w=\"11906\" w:h=\"16838\"/><w:pgMar w:top=\"1080\" w:right=\"840\" "
              "w:bottom=\"1920\" w:left=\"1120\" w:header=\"560\" w:footer=\"1120\" "
              "w:gutter=\"0\"/>");
}

TEST(DocumentPage, FallsBackWhereMarginsLeaveNoRoom) {
    EXPECT_NEAR(documentPage("15,15").textWidth(), 17 * u, 1e-9);
    EXPECT_NEAR(documentPage("-3,2").textWidth(), 21 * u - 56, 1e-9);
    EXPECT_NE(documentPage("2,2,20,20").words().find("w:top=\"1134\""), std::string::npos);
}

}  // namespace
}  // namespace korven::outdoc
