#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/page.hpp"

namespace korven::document {

/// The text in lines no wider than `larghezza`, broken at line feeds and at blanks, but not
/// between a number and its unit; a word wider than a line is broken behind a sign or, where it has
/// none, anywhere. At least one line.
[[nodiscard]] std::vector<std::string> inRighe(std::string_view testo, double larghezza,
                                               const Carattere& carattere,
                                               const MisuraCaratteri& misura);

/// The text with its line ends and blanks as they are; what is too long for a line goes on in the
/// next one, set in, cut beside no blank.
[[nodiscard]] std::vector<std::string> inRigheFisse(std::string_view testo, double larghezza,
                                                    const Carattere& carattere,
                                                    const MisuraCaratteri& misura);

/// The text, or as much of its head as fits with "…" behind it.
[[nodiscard]] std::string accorciato(std::string_view testo, double larghezza,
                                     const Carattere& carattere, const MisuraCaratteri& misura);

/// Width of the widest word, or number with its unit: what can't be made narrower without breaking
/// one.
[[nodiscard]] double parolaPiuLarga(std::string_view testo, const Carattere& carattere,
                                    const MisuraCaratteri& misura);

}  // namespace korven::document
