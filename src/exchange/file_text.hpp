#pragma once

#include <string>
#include <string_view>

namespace korven::exchange {

/// The text of a file that another program wrote: UTF-8 with or without its mark; bytes that are no
/// UTF-8 are taken for Windows-1252, which Latin-1 is a part of. UTF-16 is known by its mark.
[[nodiscard]] std::string testoDiFile(std::string_view byte);

}  // namespace korven::exchange
