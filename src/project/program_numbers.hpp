#pragma once

#include <cmath>

#include "project/units.hpp"

// Numbers for other programs, in JSON and in the tables of studies: the six decimals of a kN that
// the result file has, without the noise of a product; a zero has no sign for the reader of a
// result.

namespace korven::project {

[[nodiscard]] inline double arrotondato(double valore) {
    return std::round(valore * 1e6) / 1e6 + 0.0;
}

/// A displacement [m], with the seven decimals of the result file.
[[nodiscard]] inline double spostamento(double metri) {
    return std::round(metri * 1e7) / 1e7 + 0.0;
}

/// A value of a field in its shown unit, with the decimals that its file keeps.
[[nodiscard]] inline double valoreCampo(double mostrato) {
    const double arrotondato = std::round(mostrato * 1e7) / 1e7;
    return std::isfinite(arrotondato) ? arrotondato + 0.0 : mostrato;
}

/// t to kN, in one product.
[[nodiscard]] inline double kN(double forza) {
    return std::round(forza * (kilonewton * 1e6)) / 1e6 + 0.0;
}

/// t m to kN m.
[[nodiscard]] inline double kNm(double momento) { return kN(momento); }

}  // namespace korven::project
