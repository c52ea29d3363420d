#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "scene/picture.hpp"

// A plotter knows straight strokes and small polygons. What a picture has beyond them is made of
// these here, in the picture's pixels.

namespace korven::drawings {

using TrattoScena = std::pair<scene::Punto, scene::Punto>;

/// What of a stroke lies outside all of the rectangles, in its order.
[[nodiscard]] std::vector<TrattoScena> fuori(const scene::Punto& da, const scene::Punto& a,
                                             const std::vector<scene::Riquadro>& riquadri);

/// The part of a stroke inside a rectangle; nothing where it lies outside.
[[nodiscard]] std::optional<TrattoScena> dentro(const scene::Punto& da, const scene::Punto& a,
                                                const scene::Riquadro& riquadro);

/// A chain of lines in dashes that go on round its corners.
/// @param acceso, spento  length of a dash and of a gap; asserted above 0
[[nodiscard]] std::vector<TrattoScena> aTratti(const std::vector<scene::Punto>& punti,
                                               double acceso, double spento);

/// A filled polygon as ones of three or four corners; where it crosses itself, what is inside by
/// the rule of even and odd.
[[nodiscard]] std::vector<std::vector<scene::Punto>> inFasce(
    const std::vector<scene::Punto>& poligono);

}  // namespace korven::drawings
