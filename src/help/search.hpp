#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "help/pages.hpp"

namespace korven::help {

/// A page that a search has found.
struct Trovata {
    const PaginaGuida* pagina = nullptr;
    std::string brano;  ///< the text around the first word found in the body, else its beginning
};

/// The words of a search, folded (search_text.hpp), parted by blanks.
[[nodiscard]] std::vector<std::string> paroleCercate(std::string_view cerca);

/// Where words of a search begin a word of a text (UTF-8): the first byte of each and the one after
/// its last.
[[nodiscard]] std::vector<std::pair<std::size_t, std::size_t>> postiTrovati(
    std::string_view testo, const std::vector<std::string>& parole);

/// The pages that hold every word, upper and lower case and accents alike, at the beginning of a
/// word: "spin" finds "spinta". Those with the words in their title come first, then those with
/// them among their further words; else in the order of the help. No words find no page.
[[nodiscard]] std::vector<Trovata> cercaNellaGuida(const Guida& guida, std::string_view cerca);

}  // namespace korven::help
