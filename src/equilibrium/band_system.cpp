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
        inverso_[i] = inverso;
        const double uno = i + 1 < n ? e * accanto(i, n) - daAccanto : 0;
        const double due = i + 2 < n ? e : 0;
        l1_[i] = uno * inverso;
        l2_[i] = due * inverso;
        daQui = daDopo + uno * l1_[i];
        daAccanto = due * l1_[i];
        daDopo = due * l2_[i];
    }
    return true;
}

void SistemaBanda::risolvi(std::span<const double> b, std::span<double> x) const {
    const std::size_t n = inverso_.size();
    double prima = 0, seconda = 0;  // what the rows above subtract from this one and from the next
    for (std::size_t i = 0; i < n; ++i) {
        x[i] = b[i] - prima;
        prima = seconda + l1_[i] * x[i];
        seconda = l2_[i] * x[i];
    }
    double dopo = 0, dopoAncora = 0;
    for (std::size_t i = n; i-- > 0;) {
        x[i] = x[i] * inverso_[i] - l1_[i] * dopo - l2_[i] * dopoAncora;
        dopoAncora = dopo;
        dopo = x[i];
    }
}

}  // namespace korven::equilibrium
