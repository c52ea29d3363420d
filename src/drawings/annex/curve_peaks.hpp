#pragma once

#include <vector>

#include "drawings/annex/depth_panels.hpp"
#include "drawings/annex/peak_labels.hpp"

namespace korven::drawings {

/// The peaks of a curve whose values are told, with value, depth and stage.
/// @param punti         of its values [px]
/// @param trascurabile  what is no larger is the noise of a hinge or of the toe, stored
[[nodiscard]] std::vector<Picco> picchi(const CurvaPannello& curva, const project::Unita& unita,
                                        const std::vector<scene::Punto>& punti,
                                        double trascurabile);

}  // namespace korven::drawings
