#pragma once

#include <cstddef>
#include <vector>

#include "scene/canvas.hpp"

// Curves of a family are told apart by colour, dashes and the shape of their marks: by each of the
// last two alone where colours are lost.

namespace korven::drawings {

/// So many curves have styles of their own.
inline constexpr std::size_t massimeSerie = 8;

/// A stretch of a curve.
/// @param numero  of the curve, from 0; after `massimeSerie` styles come again
[[nodiscard]] scene::Linea lineaSerie(std::size_t numero, std::vector<scene::Punto> punti);

/// Its mark about a point.
void segnaSerie(scene::Tela& tela, std::size_t numero, scene::Punto punto);

/// Room that a mark takes to each side [px].
inline constexpr double mezzoSegno = 2.6;

}  // namespace korven::drawings
