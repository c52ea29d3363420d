#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "scene/picture.hpp"

namespace korven::scene {

/// The part of a convex polygon below a straight line from `a` to `b`, which runs to the right.
/// Source: the polygon clip of Sutherland and Hodgman (1974), one edge of it.
[[nodiscard]] std::vector<Punto> sotto(const std::vector<Punto>& poligono, Punto a, Punto b);

/// The part of a stroke inside a convex polygon, whichever way that goes round; nothing where it
/// lies outside.
/// Source: the line clip of Cyrus and Beck (1978).
[[nodiscard]] std::optional<std::pair<Punto, Punto>> dentro(const std::vector<Punto>& poligono,
                                                            Punto da, Punto a);

[[nodiscard]] std::vector<Punto> rettangolo(double x1, double y1, double x2, double y2);

/// The upright rectangle about some points.
[[nodiscard]] Riquadro intorno(const std::vector<Punto>& punti);

}  // namespace korven::scene
