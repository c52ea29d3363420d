#pragma once

#include <array>

#include "plot/geometry.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::drawings {

/// Outline of one wave of the sheet pile, closed from the last point to the first [mm]: x across
/// the wall, downhill positive, y along it, from the middle of the wave. First the downhill
/// face, then back along the uphill one; where flange and web meet is a corner, as of plates
/// that are mitred.
/// @pre altAla > 0, asserted: without height there are no webs, nor a wave
[[nodiscard]] std::array<plot::Punto, 12> profiloPalancola(const structure::PalancolaMm& palancola);

}  // namespace korven::drawings
