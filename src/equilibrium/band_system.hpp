#pragma once

#include <span>
#include <vector>

namespace korven::equilibrium {

/// A row of L D L': of D, and of L in the column below.
struct RigaBanda {
    double inverso = 0;     ///< 1 / D
    double l1 = 0, l2 = 0;  ///< cells of L in the next row taken out, and in the one after it
};

/// The tangent of a wall: bending, which is a symmetric band of width two, and a spring a node.
///
///     K = e D'D + diag(k),  (D y)(i) = y(i-1) - 2 y(i) + y(i+1) at the inner nodes,  e = EJ / h^3
///
/// It is factorised as L D L', the rows taken out in turn from the top and from the bottom: L has
/// ones on its diagonal and two cells below each, of the two rows further towards the middle.
/// Source: Golub & Van Loan, Matrix Computations (2013), chapter 4, for the factors of a band (not
/// looked up).
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
    std::vector<RigaBanda> righe_;
};

}  // namespace korven::equilibrium
