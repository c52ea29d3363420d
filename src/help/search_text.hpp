#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korven::help {

/// The words of a page of the help without its tags: entities become their characters, a tag that
/// ends a block becomes a blank, and blanks in a row one. "k<sub>0</sub>" gives "k0".
[[nodiscard]] std::string testoPagina(std::string_view html);

/// A text as the search compares it.
struct TestoPiegato {
    std::string testo;                 ///< small letters without accents; Greek letters by name
    std::vector<std::size_t> origine;  ///< for each of its bytes, where that comes from
};

/// Folds a text (UTF-8): "Densità φ" becomes "densita phi".
[[nodiscard]] TestoPiegato piega(std::string_view testo);

}  // namespace korven::help
