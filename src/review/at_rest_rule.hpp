#pragma once

#include <cmath>

#include "analysis/pressure_coefficients.hpp"

namespace korven::review {

/// The coefficient at rest under rising ground by the standard, beside which the program's own is
/// put; the program's falls with the slope, this one rises.
///
///     K0 = (1 - sin phi) (1 + sin beta)
///
/// @param phi   friction angle [rad]
/// @param beta  slope of the ground of the retained side, from 0 [rad]
/// @return K0 [-], without overconsolidation
/// Source: EN 1997-1:2004, 9.5.2.
[[nodiscard]] inline double riposoDelPendio(double phi, double beta) {
    return analysis::coefficienteRiposo(phi, 0) * (1 + std::sin(beta));
}

}  // namespace korven::review
