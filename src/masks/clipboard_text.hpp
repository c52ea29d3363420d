#pragma once

#include <string>
#include <string_view>
#include <vector>

// Text that comes from the clipboard, as spreadsheets lay it there.

namespace korven::masks {

/// Its rows and cells: rows end at CR LF or at LF alone, cells at a tab. A line break at the very
/// end opens no further row.
[[nodiscard]] std::vector<std::vector<std::string>> righeAppunti(std::string_view testo);

/// What a question shows of it: a text of more than five line breaks is cut after the sixth, and
/// dots say so.
[[nodiscard]] std::string anteprimaAppunti(std::string_view testo);

}  // namespace korven::masks
