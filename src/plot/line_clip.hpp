#pragma once

#include <optional>

#include "plot/geometry.hpp"

namespace korven::plot {

/// The part of a stroke inside a rectangle; nothing when it lies wholly beyond one of the sides. A
/// stroke on the very edge stays. The sides are taken in the order left, right, lower, upper; an
/// end beyond a side is moved along the stroke to that side, after the ends have been exchanged
/// where needed so that it comes first. Ends that were exchanged stay so.
/// Source: the line clip of Cohen and Sutherland, in Newman & Sproull, Principles of Interactive
/// Computer Graphics (1979) (not looked up).
[[nodiscard]] std::optional<Tratto> ritagliaTratto(Tratto tratto, const Riquadro& riquadro);

}  // namespace korven::plot
