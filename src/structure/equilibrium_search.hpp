#pragma once

#include "structure/strip_model.hpp"

namespace korven::structure {

/// Strain eps0 at y = 0 for which a section of given curvature balances the axial force,
/// forzaSezione + Nd = 0, by bisection. It starts from a bracket in which the strains of both faces
/// can reach -0.01 and 0.01 and halves it until the forces at its two ends differ by less than 1 N,
/// or until no double lies between them. The last midpoint is the result.
///
/// There is no test that the bracket holds a root: without one, as when the axial force crushes the
/// section, the lower end walks up towards the upper one. `inEquilibrio` tells.
///
/// @param k    direction of bending: 1 stretches the uphill side (chi above 0), -1 the downhill one
/// @param chi  curvature [1/mm], of the sign of k or 0
/// @param Nd   design axial force [N], positive in compression
/// @pre k is 1 or -1, and chi of its sign: asserted
/// Source: bisection, Press et al., Numerical Recipes (1992), 9.1 (not looked up); the bracket and
/// the tolerance are this program's own
[[nodiscard]] double cercaDeformazione(const ModelloStrisce& modello, int k, double chi, double Nd);

/// True when the strip forces balance the axial force within 1 N; false for a sum not finite.
[[nodiscard]] bool inEquilibrio(const ModelloStrisce& modello, double eps0, double chi, double Nd);

}  // namespace korven::structure
