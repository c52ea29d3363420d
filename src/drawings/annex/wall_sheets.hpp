#pragma once

#include <string>
#include <vector>

#include "live/wall.hpp"
#include "scene/picture.hpp"

// Drawings of a wall and of what was found along it, in the pixels of `pixelCarta`. Sizes in cm.

namespace korven::drawings {

/// One stage: the wall in section, beside it pressures, displacement, moment and shear on its axis
/// of depth, with values and depths of their peaks. One that does not stand is the mechanism that
/// it is, beside panels without curves.
/// @param fase  counted from 1
[[nodiscard]] scene::Scena scenaFase(const live::PareteViva& parete, int fase, double larghezza,
                                     double altezza);

/// Limit pressures of a wall that moves as a mechanism, node 1 in element 0 [t/m2].
struct PressioniLimite {
    std::vector<double> monte, valle, acqua;
};

/// A stage that is a mechanism: the wall as it falls, beside it what both sides can give at most.
/// @param fase  counted from 1
[[nodiscard]] scene::Scena scenaMeccanismo(const live::PareteViva& parete, int fase,
                                           const PressioniLimite& pressioni, double larghezza,
                                           double altezza);

/// Moments, shears and displacements of all stages that stand as thin lines, their envelopes as
/// bold ones, with value, depth and stage of the peaks, beside the wall with all its stages.
[[nodiscard]] scene::Scena scenaInviluppi(const live::PareteViva& parete, double larghezza,
                                          double altezza);

/// A wall and what it is called.
struct MuroDetto {
    const live::PareteViva& parete;
    std::string nome;
};

/// Two walls beside one another, below them the envelopes of both on one axis of depth: of the
/// first, A, in solid lines, of the other, B, in dashed ones.
[[nodiscard]] scene::Scena scenaConfronto(const MuroDetto& a, const MuroDetto& b, double larghezza,
                                          double altezza);

}  // namespace korven::drawings
