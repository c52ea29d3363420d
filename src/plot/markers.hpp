#pragma once

#include <span>

namespace korven::plot {

/// A pen move of a marker, in units of its height from its centre.
struct PassoSimbolo {
    int codice;  ///< 3 pen up, 2 pen down
    double dx;
    double dy;
};

/// The strokes of a marker, 1 to 16. Every other code has none.
///
///  1 octagon, 2 triangle (with `angolo` 180 its point is down), 3 plus, 4 diagonal cross,
///  5 diamond, 6 arrow, 7 triangle with its point down, 8 right-angled triangle, 9 three-armed
///  star, 10 square with ticks at its corners, 11 eight-armed star, 12 square, 13 vertical bar,
///  14 star of two opposed triangles, 15 tick to the right, 16 tick upward
///
/// @param codice  as read from a text; 2.5 is no marker
/// @param angolo  degrees; only marker 2 looks at it
[[nodiscard]] std::span<const PassoSimbolo> trattiSimbolo(double codice, double angolo);

}  // namespace korven::plot
