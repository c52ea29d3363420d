#pragma once

#include <vector>

#include "markup/cells.hpp"
#include "markup/reset_arguments.hpp"
#include "markup/text_fitting.hpp"

namespace korven::markup {

// Room between two columns, and the share of it that lies left of a cell [points].
inline constexpr double columnGap = 0.5 * pointsPerCentimetre;
inline constexpr double columnIndent = 0.25 * pointsPerCentimetre;

/// What the columns of a table or list take up, in the unit of the measure.
struct FittedTable {
    std::vector<double> widths;  ///< of column 1 and so on, from index 0
    double total = 0;            ///< W = sum over c of (width c + gap)
};

/// A list joins its first column to the next by a leader, which gets room of its own.
enum class BlockKind { table, list };

/// Fits the columns to what the grid holds: rewrites the numbers of each column to as many decimals
/// as the one that has most (number_profile.hpp), takes the outer blanks off all cells and finds
/// the widest of each column. Row 1 counts like the others. The grid keeps what was rewritten, also
/// for a later table whose rows are short.
/// @param measure  width of a text [points]
[[nodiscard]] FittedTable fitColumns(CellGrid& grid, BlockKind kind, const TextMeasure& measure);

}  // namespace korven::markup
