#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korven::base {

/// The text with a blank at which no line ends between each number and the unit behind it, and
/// within a unit ("12.5 kN m/m", "80 %", "[kN m]"):
/// for windows that break lines. Numbers and units are left as they are; a word that merely begins
/// like a unit ("3 mesi") is none.
[[nodiscard]] std::string unitaUnite(std::string_view testo);

/// The parts of a line between its blanks, but for those that `unitaUnite` binds and those beside
/// the sign of a value ("z = 8.10 m"): for a document, which sets its lines itself. Empty ones
/// beside blanks that follow one another.
[[nodiscard]] std::vector<std::string_view> paroleUnite(std::string_view riga);

}  // namespace korven::base
