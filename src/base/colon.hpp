#pragma once

#include <string>

namespace korven::base {

/// What is spoken of, a colon, and what is said of it, with the blanks that the language in force
/// puts beside a colon: "massimi: 5 mm", in French "maximums : 5 mm".
[[nodiscard]] std::string conDuePunti(const std::string& cosa, const std::string& detto);

}  // namespace korven::base
