#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace korven::base {

/// Of some names the one that was most likely meant by one that is none of them: the only one that
/// begins with it, in whatever capitals ("spostamento_massimo" without its unit), else the one from
/// which it differs in the fewest letters put in, left out or replaced, one for each four that it
/// has and three at most. Nothing where none is so near, or two are equally near.
/// Source of the distance: Levenshtein (1966), Binary codes capable of correcting deletions,
/// insertions, and reversals.
[[nodiscard]] std::optional<std::string> nomeVicino(std::string_view nome,
                                                    std::span<const std::string> nomi);

}  // namespace korven::base
