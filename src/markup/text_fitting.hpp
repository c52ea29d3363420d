#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace korven::markup {

inline constexpr int maximumLines = 100;  ///< of one text

/// Width of a text in the unit of the column.
using TextMeasure = std::function<double(std::string_view)>;

/// Cuts a text into the lines of a column. "|" is a forced line end; a text without one that is
/// narrower than the column is the last line. What is too wide is cut by syllables, with a "-"
/// where the cut falls inside a word: the line takes as many as stay narrower than the column, and
/// one at least, so that a word without a place to part overruns it. Lines have no outer blanks.
/// @param width  of the column, in the unit of `measure`
/// @throws base::ErroreIndice at line 101
[[nodiscard]] std::vector<std::string> fitText(std::string_view text, double width,
                                               const TextMeasure& measure);

}  // namespace korven::markup
