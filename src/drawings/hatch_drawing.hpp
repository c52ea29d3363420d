#pragma once

#include <functional>

#include "plot/geometry.hpp"

namespace korven::drawings {

/// Fills a rectangle of the sheet with the patterns of a hatch code, with the pen in use.
///
/// The code is read from its right in groups of three digits: the last two of a group are the
/// number of a pattern (hatch_library.hpp), the first is its size step s. The patterns lie over
/// each other in that order: 12005 draws pattern 5, then 12. A group whose pattern has no strokes
/// draws nothing.
///
/// At step s a stroke unit is unit * 2^((s - 1) / 4) long, so 105 draws pattern 5 at its unit, 505
/// at twice that and 5 smaller by the fourth root of 2. Square tiles of 200 units cover the
/// rectangle from its centre outward, and each stroke is cut at the rectangle. A stroke that goes
/// on from the end of the one before, in either direction, costs no pen move; a dot becomes a
/// stroke of 0.01 cm towards the middle.
///
/// @param codice  a whole number from 0
/// @param x1,x2   left and right side [cm]
/// @param y1,y2   lower and upper side [cm], in any order
/// @throws base::ErroreFile when the library is missing or broken
void disegnaCampitura(double codice, double x1, double x2, double y1, double y2);

/// The strokes that `disegnaCampitura` draws, in its order and cut at the rectangle, for pictures
/// that no pen draws; a dot has its ends in one point.
/// @throws base::ErroreFile as above
void perOgniTratto(double codice, const plot::Riquadro& riquadro,
                   const std::function<void(const plot::Tratto&)>& ricevi);

}  // namespace korven::drawings
