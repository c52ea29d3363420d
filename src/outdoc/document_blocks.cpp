#include "outdoc/document_blocks.hpp"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <numeric>
#include <string_view>

#include "markup/estimated_width.hpp"
#include "markup/report_page.hpp"
#include "markup/table_style.hpp"

namespace korven::outdoc {

using markup::Alignment;
using markup::columnGap;
using markup::columnIndent;
using markup::ReportFont;

namespace {

// A little more than the estimate, lest a font that runs wider break a number [points].
constexpr double spare = 3;

constexpr double cellRoom = 0.75;  // above and below the text of a cell [points]

constexpr std::string_view lineBelow =
    "<w:tcBorders><w:bottom w:val=\"single\" w:sz=\"4\" w:space=\"0\" w:color=\"auto\"/>"
    "</w:tcBorders>";

// A table begins the margin of its cells further left than it says, so that its texts align with
// those above it; with that margin as its indent its lines begin at the margin of the page.
std::string tableHead(const std::vector<double>& widths, Alignment alignment) {
    constexpr std::string_view places[] = {"left", "center", "right"};
    const std::string margin = "w:w=\"" + twentieths(columnIndent) + "\" w:type=\"dxa\"/>";
    const std::string room = "w:w=\"" + twentieths(cellRoom) + "\" w:type=\"dxa\"/>";
    double total = 0;
    std::string columns;
    for (const double width : widths) {
        total += width;
        columns += "<w:gridCol w:w=\"" + twentieths(width) + "\"/>";
    }
    return "<w:tbl><w:tblPr><w:tblW w:w=\"" + twentieths(total) +
           "\" w:type=\"dxa\"/><w:jc w:val=\"" + std::string(places[static_cast<int>(alignment)]) +
           "\"/>" + (alignment == Alignment::left ? "<w:tblInd " + margin : "") +
           "<w:tblLayout w:type=\"fixed\"/><w:tblCellMar><w:top " + room + "<w:left " + margin +
           "<w:bottom " + room + "<w:right " + margin + "</w:tblCellMar></w:tblPr><w:tblGrid>" +
           columns + "</w:tblGrid>\n";
}

std::string cellWords(double width, bool underlined, const Paragraph& content) {
    return "<w:tc><w:tcPr><w:tcW w:w=\"" + twentieths(width) + "\" w:type=\"dxa\"/>" +
           std::string(underlined ? lineBelow : "") + "</w:tcPr>" + paragraph(content) + "</w:tc>";
}

double widestWord(std::string_view text, const ReportFont& font) {
    double widest = 0;
    while (true) {
        const auto blank = text.find(' ');
        widest = std::max(widest, markup::estimatedWidth(font, text.substr(0, blank)));
        if (blank == std::string_view::npos) return widest;
        text.remove_prefix(blank + 1);
    }
}

// Of each column what its words and numbers need, so that none is broken.
std::vector<double> leastWidths(markup::CellGrid& grid, const ReportFont& font,
                                const ReportFont& bold) {
    std::vector<double> least;
    for (int column = 1; column <= grid.columns(); ++column) {
        double widest = widestWord(grid.cell(1, column), bold);
        for (int row = 2; row <= grid.rowCount(); ++row)
            widest = std::max(widest, widestWord(grid.cell(row, column), font));
        least.push_back(widest + columnGap + spare);
    }
    return least;
}

// To the width of the page: each column gives of what it does not need, or, if that is not enough,
// all in proportion.
void shrink(std::vector<double>& widths, double total, const std::vector<double>& least,
            double textWidth) {
    const double needed = std::accumulate(least.begin(), least.end(), 0.0);
    const bool enough = needed <= textWidth && needed < total;
    for (std::size_t i = 0; i < widths.size(); ++i)
        widths[i] =
            enough ? least[i] + (widths[i] - least[i]) * (textWidth - needed) / (total - needed)
                   : widths[i] * textWidth / total;
}

}  // namespace

std::vector<double> columnWidths(markup::CellGrid& grid, const markup::FittedTable& fitted,
                                 const ReportFont& font, double textWidth) {
    ReportFont bold = font;
    bold.bold = true;
    std::vector<double> widths;
    double total = 0;
    for (int column = 1; column <= grid.columns(); ++column) {
        const double plain = fitted.widths[static_cast<std::size_t>(column - 1)];
        const double head = markup::estimatedWidth(bold, grid.cell(1, column));
        widths.push_back(std::max(plain, head) + columnGap + spare);
        total += widths.back();
    }
    if (total > textWidth) shrink(widths, total, leastWidths(grid, font, bold), textWidth);
    return widths;
}

std::string tableWords(markup::CellGrid& grid, const std::vector<double>& widths,
                       Alignment alignment, std::string_view columnStyle, const ReportFont& font,
                       int keptRows) {
    assert(grid.rowCount() >= 1);
    std::string words = tableHead(widths, alignment);
    for (int row = 1; row <= grid.rowCount(); ++row) {
        const bool head = row == 1;
        const bool last = row == grid.rowCount();
        words += "<w:tr><w:trPr><w:cantSplit/>";
        words += head ? "<w:tblHeader/></w:trPr>" : "</w:trPr>";
        for (int column = 1; column <= grid.columns(); ++column) {
            Paragraph content;
            content.font = font;
            content.font.bold = head;
            content.keepWithNext = (head && !last) || row <= keptRows;
            if (markup::rightAligned(columnStyle, column)) content.alignment = Alignment::right;
            content.runs = run(content.font, grid.cell(row, column));
            words += cellWords(widths[static_cast<std::size_t>(column - 1)], head || last, content);
        }
        words += "</w:tr>\n";
    }
    return words + "</w:tbl>\n";
}

double lineHeight(const ReportFont& font) {
    constexpr double linePerSize = 1.15;
    return linePerSize * (font.size > 0 ? font.size : markup::defaultFontSize);
}

double rowHeight(const ReportFont& font) { return lineHeight(font) + 2 * cellRoom; }

Paragraph listRow(const markup::FittedTable& fitted, Alignment alignment, double textWidth) {
    const double start = std::max(0.0, markup::alignedX(alignment, {0, textWidth}, fitted.total));
    Paragraph row;
    row.indent = start + columnIndent;
    double cursor = start;
    for (std::size_t i = 0; i < fitted.widths.size(); ++i) {
        cursor += fitted.widths[i] + columnGap;
        if (i > 0)  // the label needs no stop
            row.tabs.push_back({std::min(cursor - columnIndent, textWidth), false, i == 1});
    }
    return row;
}

}  // namespace korven::outdoc
