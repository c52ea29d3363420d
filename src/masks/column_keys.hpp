#pragma once

#include <string>
#include <string_view>
#include <vector>

// The help text of a column may end in the values that it takes:
// "Kind of the anchor.$$$0=tension only,1=tension and compression".

namespace korven::masks {

/// The keys after "$$$", trimmed and in upper case; nothing when the help has no "$$$". What has no
/// "=" is a key as a whole, an empty key is none.
[[nodiscard]] std::vector<std::string> chiaviColonna(std::string_view aiuto);

/// True when the column has no keys or the text is one of them: both trimmed and in upper case,
/// compared as texts, so that "01" is not "1".
[[nodiscard]] bool ammessa(std::string_view aiuto, std::string_view testo);

/// The help as the strip shows it: a line break replaces "$$$".
[[nodiscard]] std::string aiutoMostrato(std::string_view aiuto);

}  // namespace korven::masks
