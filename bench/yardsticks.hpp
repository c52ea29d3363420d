#pragma once

#include <cstddef>
#include <vector>

namespace korven::bench {

/// A system for the yardsticks: n x n cells, column by column, and the right-hand side.
struct SistemaPieno {
    int n = 0;
    std::vector<double> A, b;
};

/// A symmetric system with two diagonals beside the main one, the upper half by columns of three,
/// and a right-hand side of ones.
struct SistemaBandato {
    int n = 0;
    std::vector<double> A, b;

    explicit SistemaBandato(int righe)
        : n(righe), A(3 * static_cast<std::size_t>(righe)), b(static_cast<std::size_t>(righe), 1) {}

    /// Adds to cell i, j with i not beyond j.
    void aggiungi(int i, int j, double valore) {
        A[static_cast<std::size_t>(2 + i - j + 3 * j)] += valore;
    }
};

/// OpenBLAS on one thread from here on.
void unSoloFilo();

/// Solve in place, the answer in s.b. LAPACK dgesv (partial pivoting) and Eigen FullPivLU.
/// @return false when LAPACK finds the matrix singular, or Eigen finds a rank below n
bool risolviDgesv(SistemaPieno& s);
bool risolviFullPivLU(SistemaPieno& s);

/// LAPACK dpbsv (Cholesky), in place, the answer in s.b.
/// @return false when the matrix is not positive definite
bool risolviDpbsv(SistemaBandato& s);

}  // namespace korven::bench
