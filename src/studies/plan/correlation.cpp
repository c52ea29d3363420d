#include "studies/plan/correlation.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

namespace korven::studies {

std::optional<Correlazione> Correlazione::di(std::size_t n, std::span<const Coppia> coppie) {
    Correlazione nuova;
    if (coppie.empty()) return nuova;
    nuova.n_ = n;
    nuova.fattore_.assign(n * n, 0);
    for (std::size_t i = 0; i < n; ++i) nuova.L(i, i) = 1;
    for (const auto& [a, b, rho] : coppie) {
        assert(a < n && b < n && a != b);
        nuova.L(std::max(a, b), std::min(a, b)) = rho;
    }
    return nuova.fattorizza() ? std::optional(nuova) : std::nullopt;
}

// R = L L^T in the place of R:
//
//     L_ij = (R_ij - sum_k<j L_ik L_jk) / L_jj        j < i
//     L_ii = sqrt(R_ii - sum_k<i L_ik^2)
//
bool Correlazione::fattorizza() {
    // What rounding leaves of a pivot that is 0: such a matrix has variables that follow from the
    // others.
    const double minimo = static_cast<double>(n_) * std::numeric_limits<double>::epsilon();
    for (std::size_t i = 0; i < n_; ++i) {
        double d = L(i, i);
        for (std::size_t j = 0; j < i; ++j) {
            double s = L(i, j);
            for (std::size_t k = 0; k < j; ++k) s -= L(i, k) * L(j, k);
            L(i, j) = s / L(j, j);
            d -= L(i, j) * L(i, j);
        }
        if (!(d > minimo)) return false;  // for NaN as well
        L(i, i) = std::sqrt(d);
    }
    return true;
}

void Correlazione::applica(std::span<double> scarti) const {
    assert(nessuna() || scarti.size() == n_);
    // From the last, since each needs those before it as they were.
    for (std::size_t i = n_; i-- > 0;) {
        double z = 0;
        for (std::size_t j = 0; j <= i; ++j) z += L(i, j) * scarti[j];
        scarti[i] = z;
    }
}

}  // namespace korven::studies
