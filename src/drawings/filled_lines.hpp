#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korven::drawings {

/// Breaks a text at its blanks into lines that are no wider than the place they have, with the font
/// of the pen in use; a word that is wider stands alone and is. A number stays with the word before
/// it and with its unit.
/// @param altezza    of the characters [cm]
/// @param larghezza  of the first line [cm]
/// @param rientro    by which the others begin farther right, and are narrower [cm]
/// @return at least one line
[[nodiscard]] std::vector<std::string> righePiene(std::string_view testo, double altezza,
                                                  double larghezza, double rientro);

}  // namespace korven::drawings
