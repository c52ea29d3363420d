#pragma once

#include <vector>

namespace korven::drawings {

/// Moves labels along a vertical line so that they don't run into each other.
///
/// Down the list: a first label that lies less than distanza/2 under the upper limit moves to that
/// distance; every other one that is closer than `distanza` to the label above it moves to lie
/// exactly `distanza` below it. Then up: a last label lower than distanza/2 above the lower limit
/// is set there; every other one closer than `distanza` to the label below it is set `distanza`
/// above it. Labels that have no room between the limits leave at the top.
///
/// @param posizioni  ordinates of the labels, from the top down
/// @param distanza   between two labels, at least
[[nodiscard]] std::vector<double> separaEtichette(std::vector<double> posizioni, double distanza,
                                                  double superiore, double inferiore);

}  // namespace korven::drawings
