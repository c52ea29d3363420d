#pragma once

#include "analysis/solver/full_pivot_elimination.hpp"

namespace korven::analysis {

/// Catches up on what the passes of Gauss-Jordan elimination do to rows that have been pivot
/// already, each cell in the order of the passes, and so completes the solution and the visible
/// part of the inverse.
///
/// @param[in,out] s  an eliminated system; its cells are used up
/// @param[out] x  solution, entries 1 to n
/// @param[out] A  the last `bordo` rows and columns of the inverse, nothing else
/// @param bordo  0 to n
/// @param larghi  as for `RisolviSistema`
void completa(SistemaEliminato& s, VettoreSistema& x, MatriceSistema& A, int bordo, bool larghi);

}  // namespace korven::analysis
