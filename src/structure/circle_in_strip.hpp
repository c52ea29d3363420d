#pragma once

namespace korven::structure {

/// Area of that part of a circle which lies in the strip y0 < y < y1, exact.
///
/// With cap(t) the area of the part of the circle further than t from its centre,
///
///     w = sqrt(r^2 - t^2)      cap(t) = r^2 (pi - 2 atan(t / w)) / 2 - t w,
///
/// what lies below y0 and above y1 is taken from pi r^2.
///
/// @param c   centre of the circle, on the axis across the strips [mm]
/// @param r   radius [mm], not below 0; a circle of radius 0 has no area wherever it is
/// @param y0  lower edge of the strip [mm]
/// @param y1  upper edge of the strip [mm], not below y0
/// @pre r and the order of the edges: asserted
/// @return area [mm2]; 0 if the circle only touches the strip
/// Source: elementary geometry, the area of a circular segment
[[nodiscard]] double areaCerchioInStriscia(double c, double r, double y0, double y1);

}  // namespace korven::structure
