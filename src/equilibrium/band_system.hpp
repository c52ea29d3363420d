#pragma once

#include <span>
#include <vector>

namespace korven::equilibrium {

/// The tangent of a wall: bending, which is a symmetric band of width two, and a spring a node.
///
///     K = e D'D + diag(k),  (D y)(i) = y(i-1) - 2 y(i) + y(i+1) at the inner nodes,  e = EJ / h^3
///
/// It is factorised as L D L' without a change of rows: L has ones on its diagonal and two
/// diagonals below. Source: Golub & Van Loan, Matrix Computations (2013), chapter 4 (not looked
/// up).
class SistemaBanda {
 public:
    /// @param n  nodes, not fewer than 4: asserted
    explicit SistemaBanda(int n);

    /// @param e  bending stiffness over the cube of the step [t/m]
    /// @param k  springs, none negative [t/m]
    /// @return false if K is singular, or so nearly that rounding decides
    [[nodiscard]] bool fattorizza(double e, std::span<const double> k);

    /// Solves K x = b.
    /// @pre the last `fattorizza` returned true
    void risolvi(std::span<const double> b, std::span<double> x) const;

 private:
    std::vector<double> inverso_;  ///< 1 / D
    std::vector<double> l1_, l2_;  ///< first and second diagonal of L, by column
};

}  // namespace korven::equilibrium
