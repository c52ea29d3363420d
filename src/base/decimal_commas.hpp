#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korven::base {

/// The number that a text means whose decimal sign is a comma, with the point that this program
/// reads: "18.5" for "18,5". Nothing for any other text, one with a point besides the comma
/// included, since it may be a number with separated thousands.
[[nodiscard]] std::optional<std::string> conIlPunto(std::string_view testo);

}  // namespace korven::base
