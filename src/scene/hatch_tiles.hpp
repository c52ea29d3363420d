#pragma once

#include <utility>
#include <vector>

#include "scene/picture.hpp"

namespace korven::scene {

/// Strokes that fill the plane when they are repeated at each `lato`, to the right and down.
struct Piastrella {
    double lato = 0;  ///< of the square [px]
    std::vector<std::pair<Punto, Punto>> tratti;
};

/// Pixels of a centimetre of the hatch library: as dense as a layer of a picture needs it, which is
/// smaller than one of the log.
inline constexpr double pixelPerCentimetro = 40;

/// The patterns of a hatch code, one upon the other (`drawings::disegnaCampitura`). Nothing for a
/// library that is missing or broken: the log tells of that, a picture does without.
[[nodiscard]] std::vector<Piastrella> piastrelle(double codice);

/// The strokes of a hatched area, cut at its border.
[[nodiscard]] std::vector<std::pair<Punto, Punto>> tratti(const Campitura& campitura);

}  // namespace korven::scene
