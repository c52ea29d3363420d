#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "markup/cells.hpp"
#include "markup/table_fitting.hpp"
#include "outdoc/paragraph.hpp"

// Tables and lists of a word-processor file.

namespace korven::outdoc {

/// Widths of the columns of a table [points]: as in print, wider where the bold head needs it,
/// since a word processor would break its text. A table wider than the page is brought to the width
/// of the page in proportion.
[[nodiscard]] std::vector<double> columnWidths(markup::CellGrid& grid,
                                               const markup::FittedTable& fitted,
                                               const markup::ReportFont& font, double textWidth);

/// A whole table. Its first row is bold and is repeated on every page that the table reaches; thin
/// lines part it from the others and close the table.
/// @param keptRows  rows from the first that stay on the page of the row, or of the paragraph,
///                  after them; the head does in any case
/// @pre the grid holds at least one row: asserted
[[nodiscard]] std::string tableWords(markup::CellGrid& grid, const std::vector<double>& widths,
                                     markup::Alignment alignment, std::string_view columnStyle,
                                     const markup::ReportFont& font, int keptRows = 0);

/// Height of a line of text in a word processor, about [points].
[[nodiscard]] double lineHeight(const markup::ReportFont& font);
/// Height of a row of a table, about [points].
[[nodiscard]] double rowHeight(const markup::ReportFont& font);

/// A row of a list before its text: indent and tab stops for right aligned columns, the first of
/// them after a dotted leader.
[[nodiscard]] Paragraph listRow(const markup::FittedTable& fitted, markup::Alignment alignment,
                                double textWidth);

}  // namespace korven::outdoc
