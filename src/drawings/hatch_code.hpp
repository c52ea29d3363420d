#pragma once

#include <vector>

#include "drawings/hatch_library.hpp"

namespace korven::drawings {

/// Half the side of the tile of a pattern, in stroke units.
inline constexpr double mezzoLatoPiastrella = 100;

/// One hatch of a code.
struct GruppoCampitura {
    int campitura = 0;  ///< number of the pattern, 0 to 99; 0 draws nothing
    int passo = 1;      ///< size step, 0 to 9 (hatch_drawing.hpp)
    bool operator==(const GruppoCampitura&) const = default;
};

/// The groups of three digits of a hatch code from its right, which is the order in which their
/// patterns lie over each other.
/// @param codice  a whole number from 0, which has one group at least
/// @return empty for a code that is no finite number
[[nodiscard]] std::vector<GruppoCampitura> gruppiCampitura(double codice);

/// Length of a stroke unit of a pattern at a size step s [cm]: unit * 2^((s - 1) / 4).
[[nodiscard]] double unitaTratto(const Campitura& campitura, double passo);

}  // namespace korven::drawings
