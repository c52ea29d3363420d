#pragma once

#include <array>
#include <string>
#include <vector>

#include "drawings/annex/depth_panels.hpp"
#include "live/wall.hpp"

// What the panels of a wall show. A stage or a wall of which nothing is known gives panels without
// curves.

namespace korven::drawings {

/// Pressures, displacement, moment and shear of a stage.
[[nodiscard]] std::vector<DatiPannello> pannelliFase(const live::PareteViva& parete, int fase);

/// Moment, shear and displacement of all stages and their envelopes.
[[nodiscard]] std::vector<DatiPannello> pannelliInviluppo(const live::PareteViva& parete);

/// The envelopes of two walls, each by its name.
[[nodiscard]] std::vector<DatiPannello> pannelliConfronto(const live::PareteViva& a,
                                                          const live::PareteViva& b,
                                                          const std::array<std::string, 2>& nomi);

}  // namespace korven::drawings
