#pragma once

#include <optional>
#include <string>

#include "live/view.hpp"
#include "live/wall.hpp"

namespace korven::scene {

/// A value at a depth; or the smallest and the largest of all stages, or of the two shears at an
/// anchor.
struct Letto {
    double minimo = 0, massimo = 0;
    bool operator==(const Letto&) const = default;
};

/// What there is at one depth of the wall, in stored units and with their signs.
struct Lettura {
    double z = 0;        ///< [m]
    std::string strato;  ///< description of the layer behind the wall; empty below the last
    /// Nothing where the stage is not in equilibrium. Of an envelope without the pressures of the
    /// sides, which are of a stage: `pressione` is the net one there.
    std::optional<Letto> y, momento, taglio, monte, valle, acqua, pressione;
};

/// The values of the stage shown, linear between its nodes.
/// @param z  any: the nearest depth of the wall is read
[[nodiscard]] Lettura lettura(const live::PareteViva& parete, const live::Vista& vista, double z);

/// As a line: "4.20 m · y 12.3 mm · M 45.0 kN m/m · T -3.2 kN/m · monte 30.1 · ...".
[[nodiscard]] std::string parole(const Lettura& lettura);

}  // namespace korven::scene
