#pragma once

#include "project/section.hpp"
#include "scene/picture.hpp"

namespace korven::drawings {

/// The section of the wall in plan, the retained side at the left, each dimension with the
/// symbol that the formulas have for it and its value, in the pixels of `pixelCarta`; empty without
/// a section.
/// @param larghezza, altezza  [cm]; from 7.5 by 6.5 on its texts are 2 mm high
[[nodiscard]] scene::Scena scenaSezione(const project::Sezione& sezione, double larghezza,
                                        double altezza);

}  // namespace korven::drawings
