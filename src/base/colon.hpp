#pragma once

#include <string>

namespace korven::base {

/// A colon with the blanks that the language in force puts beside it: ": ", in French " : ". The
/// blank in front of it is one at which no line ends.
[[nodiscard]] std::string duePunti();

/// A semicolon, likewise: "; ", in French " ; ".
[[nodiscard]] std::string puntoEVirgola();

/// What is spoken of, a colon, and what is said of it: "passi: 5", in French "pas : 5".
[[nodiscard]] std::string conDuePunti(const std::string& cosa, const std::string& detto);

}  // namespace korven::base
