#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// A text as a shell (POSIX) takes it for one word of a command: plain names as they are, all else
/// between single quote marks.
[[nodiscard]] std::string perLaShell(std::string_view testo);

}  // namespace korven::base
