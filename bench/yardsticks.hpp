#pragma once

#include <vector>

namespace korven::bench {

/// A system for the yardsticks: n x n cells, column by column, and the right-hand side.
struct SistemaPieno {
    int n = 0;
    std::vector<double> A, b;
};

/// OpenBLAS on one thread from here on.
void unSoloFilo();

/// Solve in place, the answer in s.b. LAPACK dgesv (partial pivoting) and Eigen FullPivLU.
/// @return false when LAPACK finds the matrix singular, or Eigen finds a rank below n
bool risolviDgesv(SistemaPieno& s);
bool risolviFullPivLU(SistemaPieno& s);

}  // namespace korven::bench
