#pragma once

#include <algorithm>
#include <cassert>
#include <cmath>

namespace korven::plot {

/// A measure in pixels of a device, its fraction cut off. What lies beyond any device is held at a
/// thousand million pixels on either side, so that every measure has a whole number.
/// @pre `misura` is finite: asserted
[[nodiscard]] inline int pixelInteri(double misura) {
    assert(std::isfinite(misura));
    constexpr double limite = 1e9;
    return static_cast<int>(std::clamp(misura, -limite, limite));
}

/// A rotation as devices take it, in tenths of a degree, the nearest one.
[[nodiscard]] inline int decimiDiGrado(double gradi) {
    const double decimi = gradi * 10;
    return pixelInteri(decimi < 0 ? decimi - 0.5 : decimi + 0.5);
}

}  // namespace korven::plot
