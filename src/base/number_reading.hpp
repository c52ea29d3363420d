#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// What a form says at once of a text that is read as another number than it seems to name:
/// "letto come 20" for "20,5", "20.5.7" and "20 m", and where a comma is to blame what the decimal
/// sign is; in the language in force. A text without a number at its head, or with one beyond all
/// numbers, is read as 0.
/// @return empty for a number to its end, and for an empty or blank text
[[nodiscard]] std::string letturaMostrata(std::string_view testo);

/// The longest text of `letturaMostrata` for numbers of usual length: what a form has room for.
[[nodiscard]] std::string letturaPiuLunga();

}  // namespace korven::base
