#pragma once

#include <vector>

#include "drawings/annex/depth_panels.hpp"
#include "live/wall.hpp"
#include "scene/scene.hpp"

namespace korven::drawings {

/// The wall in section as a part of a picture.
struct VedutaMuro {
    std::vector<scene::Primitiva> primitive;
    AsseProfondita asse;  ///< its length is 0 where there is no wall to draw
    double basso = 0;     ///< lower end of the ground [px]
};

/// The section of the desktop's picture, placed in a part of another: without dimensions and the
/// line at its foot where that is narrow.
/// @param fase     counted from 1; 0: all stages
/// @param testata  room above depth 0, at least [px]
/// @param piede    room below the toe, at least [px]
[[nodiscard]] VedutaMuro vedutaMuro(const live::PareteViva& parete, int fase,
                                    const scene::Riquadro& posto, double testata, double piede,
                                    const scene::MisuraTesti& testi);

/// Moves what a picture is made of.
[[nodiscard]] std::vector<scene::Primitiva> spostate(std::vector<scene::Primitiva> primitive,
                                                     double dx, double dy);

}  // namespace korven::drawings
