#pragma once

#include <string>

namespace korven::report {

/// The lines of a file, each behind its number, as many side by side as a page has room for:
/// "1: 6            2: 2.5". A line that begins or ends with a blank stands between « and ».
/// @param testo  of the file, each line ended by CR LF or LF
[[nodiscard]] std::string righeNumerate(const std::string& testo);

/// How many lines a file has.
[[nodiscard]] std::size_t numeroRighe(const std::string& testo);

}  // namespace korven::report
