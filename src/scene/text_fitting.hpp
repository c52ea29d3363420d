#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scene/text_measure.hpp"

namespace korven::scene {

/// The text, or as much of its head as fits with "…" behind it; whole words where at least half of
/// the room stays used. Empty where not even two letters fit.
[[nodiscard]] std::string accorciato(std::string_view testo, double larghezza, double corpo,
                                     bool grassetto, const MisuraTesti& misura);

/// The text in lines no wider than `larghezza`, broken at blanks; the last of `massimo` lines is
/// shortened.
[[nodiscard]] std::vector<std::string> inRighe(std::string_view testo, double larghezza,
                                               double corpo, int massimo,
                                               const MisuraTesti& misura);

}  // namespace korven::scene
