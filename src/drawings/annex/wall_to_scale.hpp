#pragma once

#include "live/wall.hpp"
#include "scene/picture.hpp"

namespace korven::drawings {

/// The wall in section with ground, hatches, water, anchors, stages and dimensions, one scale for
/// depth and width that a bar below it shows, in the pixels of `pixelCarta`.
/// @param larghezza, altezza  [cm]
[[nodiscard]] scene::Scena scenaParete(const live::PareteViva& parete, double larghezza,
                                       double altezza);

}  // namespace korven::drawings
