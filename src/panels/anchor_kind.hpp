#pragma once

#include <string>

#include "masks/grid_model.hpp"
#include "panels/anchor_calculator.hpp"

namespace korven::panels {

/// What to do where the calculator calculates a strut and its row is one that acts in tension
/// alone, translated. Empty where the two agree, for a row without data, and for an anchor: that
/// may act in compression too.
[[nodiscard]] std::string tipologiaDiscorde(const masks::ModelloGriglia& griglia, int riga,
                                            GenereAncoraggio genere);

}  // namespace korven::panels
