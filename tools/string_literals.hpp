#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// The string literals of a C++ source in their order, without quotes. Literals that only blanks
/// and comments part are one text, as for the compiler. Includes, comments and characters give
/// none. Escapes stay as they are written; raw literals are not known.
[[nodiscard]] std::vector<std::string> stringLiterals(std::string_view source);

}  // namespace korven::tools
