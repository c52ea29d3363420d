#pragma once

#include <string>
#include <string_view>

namespace korven::report {

/// A command of a shell in lines of at most `larghezza` characters, as far as its arguments allow:
/// all but the last end with a backslash, and a line ends between two arguments alone, before an
/// option where it can.
[[nodiscard]] std::string aCapo(std::string_view comando, std::size_t larghezza);

}  // namespace korven::report
