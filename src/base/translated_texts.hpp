#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// Returns the text to show for an Italian text, which is its key. Never fails: a text that stands
/// in no table comes back as it is, without its leading and trailing blanks.
[[nodiscard]] std::string traduttore(std::string_view testo);

}  // namespace korven::base
