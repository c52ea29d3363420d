#include "studies/summary/interval.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace korven::studies {

Intervallo intervalloWilson(std::uint64_t volte, std::uint64_t prove, double z) {
    assert(volte <= prove);
    if (prove == 0) return {};
    const double n = static_cast<double>(prove), p = static_cast<double>(volte) / n;
    const double centro = p + z * z / (2 * n);
    const double mezzo = z * std::sqrt(p * (1 - p) / n + z * z / (4 * n * n));
    const double intero = 1 + z * z / n;
    // Rounding leaves a little of an end that is 0 or 1.
    return {volte == 0 ? 0 : std::max(0.0, (centro - mezzo) / intero),
            volte == prove ? 1 : std::min(1.0, (centro + mezzo) / intero)};
}

}  // namespace korven::studies
