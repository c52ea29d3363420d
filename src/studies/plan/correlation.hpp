#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace korven::studies {

/// The correlation of the normal scores of two variables, by their numbers from 0.
struct Coppia {
    std::size_t prima, seconda;
    double rho;
};

/// A Gaussian copula: gives independent normal scores the correlations of some of their pairs; all
/// other pairs have none.
///
///     z = L g,   L L^T = R,   R_ij = rho of the scores of i and j,   R_ii = 1
///
/// Each score stays a standard normal one, and so each variable keeps its law. Between the
/// variables themselves Pearson's coefficient comes out nearer to 0 than rho where a law is not
/// normal; Spearman's is 6/pi asin(rho/2).
/// Source: Golub & Van Loan (2013), Matrix computations, 4.2; Nelsen (2006), An introduction to
/// copulas.
class Correlazione {
 public:
    Correlazione() = default;  ///< none

    /// The correlation of n variables; nothing for a matrix that is not positive definite, so that
    /// no variables have these correlations.
    /// @pre the pairs name variables below n, each pair once: asserted
    [[nodiscard]] static std::optional<Correlazione> di(std::size_t n,
                                                        std::span<const Coppia> coppie);

    [[nodiscard]] bool nessuna() const { return n_ == 0; }
    /// @param scarti  independent before, correlated after; n of them, any number without
    /// correlation
    void applica(std::span<double> scarti) const;

 private:
    [[nodiscard]] double& L(std::size_t i, std::size_t j) { return fattore_[i * n_ + j]; }
    [[nodiscard]] double L(std::size_t i, std::size_t j) const { return fattore_[i * n_ + j]; }
    bool fattorizza();

    std::size_t n_ = 0;
    std::vector<double> fattore_;  // n x n, row by row; what lies above the diagonal is not read
};

}  // namespace korven::studies
