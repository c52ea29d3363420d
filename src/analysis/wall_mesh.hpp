#pragma once

#include "analysis/node_vector.hpp"
#include "analysis/solver/system_matrix.hpp"

namespace korven::analysis {

/// Stiffness of the springs that act as restraints, as a coefficient of the net pressure [t/m3].
inline constexpr double kVincolo = -1e11;

/// Node of an anchor at a depth: the nearest one, the deeper one half way.
/// @return a number outside 1 to `nNodi` for an anchor beside the wall; below the toe it goes on
///         growing to a million, above the top it falls to -1, also for a depth that is no number
[[nodiscard]] int nodoTirante(double profondita, double passoNodi);

/// What one iteration knows of the wall.
struct Parete {
    int n = 0;     ///< nodes of the system, one more than the wall's with a fixed toe
    double h = 0;  ///< distance of the nodes [m]
    const VettoreNodi* E = nullptr;  ///< bending stiffness [t m2]
    const VettoreNodi* p = nullptr;  ///< constant part of the net pressure [t/m2]
    const VettoreNodi* k = nullptr;  ///< coefficient of the displacement in it [t/m3], not positive
    double H = 0;                    ///< horizontal force at the top [t]
    double M = 0;                    ///< moment at the top [t m]
};

/// Writes the linear system of one iteration, 2n equations for the shears T(1..n) and the
/// displacements y(1..n). With N = n - 1:
///
///     rows 1 to N       shear balance of each segment, trapezoid rule
///     rows N+1 to 2N    moment balance of each segment, with the finite-difference moment
///                       M(j) = -E(j) (y(j-1) - 2 y(j) + y(j+1)) / h^2 in both ends; 0 at the toe
///     row 2N+1          sum of all horizontal forces
///     row 2N+2          sum of their moments about the wall top
///
/// Cells are assigned, never added to, and cells that no equation names are left as they are.
/// @pre n >= 4: asserted
/// Source: Winkler (1867) for the beam on springs; Abramowitz & Stegun (1964), chapter 25, for the
/// trapezoid rule and the second difference (neither looked up).
void assembla(const Parete& parete, MatriceSistema& A, VettoreNodi& b);

}  // namespace korven::analysis
