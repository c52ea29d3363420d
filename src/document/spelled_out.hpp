#pragma once

#include <string>
#include <string_view>

namespace korven::document {

/// The text with words for the characters that Windows-1252 lacks: "φ ≤ 30°" becomes
/// "phi <= 30°", "10⁻⁶" becomes "10^-6". What nobody has a word for stays as it is, and a file in
/// that code page shows '?'.
[[nodiscard]] std::string perEsteso(std::string_view utf8);

}  // namespace korven::document
