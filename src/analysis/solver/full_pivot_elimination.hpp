#pragma once

#include "analysis/solver/system_matrix.hpp"

namespace korven::analysis {

/// A system after full-pivot elimination below the pivots, laid out by place.
///
/// The pivot row and column of pass p (from 0) have the place n - 1 - p, so that the columns still
/// in play are always the leftmost. `riga[t]` points to the row of place t; its cells are
///
///     j < t    the row as it was after its own pass, divided by the pivot
///     j = t    1 / pivot
///     j > t    what its own column had to be cleared with in the earlier pass of place j
struct SistemaEliminato {
    int n = 0;
    double* riga[capacitaSistema];
    /// 1 / pivot, and the right-hand side as it was after the row's own pass, divided by the pivot
    double inverso[capacitaSistema], termine[capacitaSistema];
    /// Row and column (from 0) where the pivot was found. The row is swapped to the row number
    /// `colonnaPivot`, where it stays.
    int rigaPivot[capacitaSistema], colonnaPivot[capacitaSistema];
};

/// Runs the passes of Gauss-Jordan elimination with full pivoting on the rows that have not been
/// pivot yet; what a pass does to the others is left to gauss_jordan_completion.hpp.
///
/// @param n  1 to 500
/// @param A  matrix; its work area is taken over by the result
/// @param b  right-hand side
/// @param conservaFattori  whether the cells j > t are wanted
/// @param larghi  as for `RisolviSistema`
/// @param[out] s  the eliminated system
/// @return false when a pass finds no cell but zeros and NaN: the system is singular
[[nodiscard]] bool elimina(int n, MatriceSistema& A, const VettoreSistema& b, bool conservaFattori,
                           bool larghi, SistemaEliminato& s);

}  // namespace korven::analysis
