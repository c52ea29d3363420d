#include "equilibrium/band_system.hpp"

#include <cassert>
#include <cstddef>
#include <limits>

namespace korven::equilibrium {

namespace {

// A pivot of this part of its diagonal cell is what rounding leaves of 0.
constexpr double nulloPerArrotondamento = 8 * std::numeric_limits<double>::epsilon();

// Rows of D'D: the ends of a free beam, and 1 -4 6 -4 1 between them.
double diagonale(std::size_t i, std::size_t n) {
    const std::size_t dalBordo = i < n - 1 - i ? i : n - 1 - i;
    return dalBordo == 0 ? 1 : dalBordo == 1 ? 5 : 6;
}
double accanto(std::size_t i, std::size_t n) { return i == 0 || i == n - 2 ? -2 : -4; }

}  // namespace

SistemaBanda::SistemaBanda(int n)
    : inverso_(static_cast<std::size_t>(n)),
      l1_(static_cast<std::size_t>(n)),
      l2_(static_cast<std::size_t>(n)) {
    assert(n >= 4);
}

// Each row waits for the ones above it; the products that do not are written so that they need not
// wait with it.
bool SistemaBanda::fattorizza(double e, std::span<const double> k) {
    const std::size_t n = inverso_.size();
    // What the columns before subtract from the diagonal of this row and of the next, and from the
    // cell beside this one.
    double daQui = 0, daDopo = 0, daAccanto = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const double cella = e * diagonale(i, n) + k[i];
        const double perno = cella - daQui;
        if (!(perno > nulloPerArrotondamento * cella)) return false;
        const double inverso = 1 / perno;
        const double uno = i + 1 < n ? e * accanto(i, n) - daAccanto : 0;
        const double due = i + 2 < n ? e : 0;
        inverso_[i] = inverso;
        l1_[i] = uno * inverso;
        l2_[i] = due * inverso;
        daQui = daDopo + (uno * uno) * inverso;
        daAccanto = (due * uno) * inverso;
        daDopo = (due * due) * inverso;
    }
    return true;
}

void SistemaBanda::risolvi(std::span<const double> b, std::span<double> x) const {
    const std::size_t n = inverso_.size();
    x[0] = b[0];
    x[1] = b[1] - l1_[0] * x[0];
    for (std::size_t i = 2; i < n; ++i)
        x[i] = (b[i] - l2_[i - 2] * x[i - 2]) - l1_[i - 1] * x[i - 1];
    x[n - 1] *= inverso_[n - 1];
    x[n - 2] = x[n - 2] * inverso_[n - 2] - l1_[n - 2] * x[n - 1];
    for (std::size_t i = n - 2; i-- > 0;)
        x[i] = (x[i] * inverso_[i] - l2_[i] * x[i + 2]) - l1_[i] * x[i + 1];
}

}  // namespace korven::equilibrium
