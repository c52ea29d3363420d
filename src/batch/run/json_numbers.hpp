#pragma once

#include <cmath>

#include "project/units.hpp"

// Numbers of the JSON: the six decimals of a kN that the result file has, without the noise of a
// product; a zero has no sign for the reader of a result.

namespace korven::batch {

[[nodiscard]] inline double arrotondato(double valore) {
    return std::round(valore * 1e6) / 1e6 + 0.0;
}

/// A displacement [m], with the seven decimals of the result file.
[[nodiscard]] inline double spostamento(double metri) {
    return std::round(metri * 1e7) / 1e7 + 0.0;
}

/// t to kN, in one product.
[[nodiscard]] inline double kN(double forza) {
    return std::round(forza * (project::kilonewton * 1e6)) / 1e6 + 0.0;
}

/// t m to kN m.
[[nodiscard]] inline double kNm(double momento) { return kN(momento); }

}  // namespace korven::batch
