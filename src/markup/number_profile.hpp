#pragma once

#include <string>
#include <string_view>

namespace korven::markup {

// How the cell of a table or list counts for the alignment of its column on the decimal point.
inline constexpr int textProfile = -2;
inline constexpr int integerProfile = -1;

/// Profile of a cell, taken with its outer blanks: `textProfile` if it holds anything but blanks,
/// digits and points, so that a negative number is a text too; `integerProfile` without a point, or
/// if the trimmed cell ends with one, so also for an empty cell; otherwise the count of characters
/// after the first point.
[[nodiscard]] int numberProfile(std::string_view cell);

/// The cell rewritten to show `decimals` characters after its first point. Zeros fill it up, an
/// integer gets point and zeros; nothing is rounded, what is too much is cut off. A cell that then
/// begins with a point gets a 0 before it. `decimals` of -1 cuts the point off as well. A text
/// stays as it is.
///
/// Since an integer gets a point of its own, "3." in a column of two decimals becomes "3..0".
/// @param profile   of this cell
/// @param decimals  largest profile of its column, hence not below `profile`
[[nodiscard]] std::string alignedCell(std::string_view cell, int profile, int decimals);

}  // namespace korven::markup
