#pragma once

#include "analysis/solver/system_matrix.hpp"
#include "analysis/solver/vector_lanes.hpp"

namespace korven::analysis {

enum class EsitoSistema { risolto, singolare };

/// Solves A x = b by Gauss-Jordan elimination with full pivoting.
///
/// The digits of the result are those of the plain algorithm, in place, in doubles:
///
///     n times: of all cells whose row and column have not been pivot yet, take the one of largest
///              absolute value (among equals the last, row by row) to the diagonal by swapping two
///              rows; divide its row by it; clear its column from all other rows
///     at last: undo the row swaps as column swaps, in reverse order
///
/// after which A holds its own inverse. That is defined down to the last bit, because a later
/// system may be assembled over cells of this inverse: what the caller doesn't clear is read again.
/// `bordoVisibile` says how much of it that is, so that no work goes into the rest.
///
/// @param n  number of unknowns, 1 to 500
/// @param A  on entry the matrix in rows and columns 1 to n. On exit the last `bordoVisibile` rows
///           and columns of these hold their part of the inverse, every other cell is as it was
/// @param b  right-hand side, entries 1 to n; may not be x
/// @param x  solution, entries 1 to n
/// @param bordoVisibile  trailing rows and columns of the inverse that are read again, 0 to n:
///           0 with a free or hinged toe, 2 with a fixed toe, n for the whole inverse
/// @param larghi  four doubles side by side, else two: of no influence on the digits
/// @pre larghi only where `registriLarghi` holds: asserted
/// @return `singolare` when the largest cell left is exactly 0 or all cells left are NaN: there is
///         no threshold. Then x is as it was, and so is A: the inverse never came to be, and as a
///         singular system ends the run nothing is assembled over A again
///
/// A value that is not finite in A or b is carried through as IEEE arithmetic has it; the
/// comparison for the largest cell passes over NaN.
///
/// Source: Golub & Van Loan, Matrix Computations (1996), 3.4 (complete pivoting); Press et al.,
/// Numerical Recipes (1992), 2.1 (Gauss-Jordan elimination in place); neither looked up.
[[nodiscard]] EsitoSistema RisolviSistema(int n, MatriceSistema& A, const VettoreSistema& b,
                                          VettoreSistema& x, int bordoVisibile,
                                          bool larghi = registriLarghi());

}  // namespace korven::analysis
