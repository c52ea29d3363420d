#pragma once

#include "scene/picture.hpp"

namespace korven::drawings {

/// Draws a picture with the plot engine, `pixelCarta` of its pixels in a centimetre, its lower left
/// corner at (0, 0). A text stands on white paper: lines end where it begins, hatches where the
/// wall does. The pens of the user have no part in it.
void disegnaScena(const scene::Scena& scena);

}  // namespace korven::drawings
