#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// UTF-8 of a text whose bytes are those of the DOS code page, as old tables hold them. Its 34
/// letters and signs that a western text needs are known; every other byte is taken as
/// Windows-1252. Capital U with diaeresis (154) becomes the small letter, unlike its neighbours:
/// that is how texts that passed through this table have always looked.
[[nodiscard]] std::string daDos(std::string_view byte);

}  // namespace korven::base
