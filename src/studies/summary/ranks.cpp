#include "studies/summary/ranks.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace korven::studies {

double quantileCampionario(std::span<const double> ordinati, double p) {
    assert(!ordinati.empty() && p >= 0 && p <= 1);
    const double posto = static_cast<double>(ordinati.size() - 1) * p;
    const auto sotto = static_cast<std::size_t>(posto);
    const std::size_t sopra = std::min(sotto + 1, ordinati.size() - 1);
    const double resto = posto - static_cast<double>(sotto);
    return ordinati[sotto] + resto * (ordinati[sopra] - ordinati[sotto]);
}

std::vector<double> ranghi(std::span<const double> valori) {
    std::vector<std::size_t> ordine(valori.size());
    std::iota(ordine.begin(), ordine.end(), std::size_t{0});
    std::ranges::sort(ordine, {}, [valori](std::size_t i) { return valori[i]; });
    std::vector<double> trovati(valori.size());
    for (std::size_t da = 0; da < ordine.size();) {
        std::size_t a = da + 1;
        while (a < ordine.size() && valori[ordine[a]] == valori[ordine[da]]) ++a;
        const double rango = static_cast<double>(da + a + 1) / 2;  // mean of da + 1 to a
        for (; da < a; ++da) trovati[ordine[da]] = rango;
    }
    return trovati;
}

std::optional<double> spearman(std::span<const double> x, std::span<const double> y) {
    assert(x.size() == y.size());
    // The mean of all ranks, with equal values too. Ranks are halves: up to a million of them the
    // sums are exact.
    const double media = static_cast<double>(x.size() + 1) / 2;
    double xx = 0, yy = 0, xy = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double a = x[i] - media, b = y[i] - media;
        xx += a * a;
        yy += b * b;
        xy += a * b;
    }
    if (!(xx > 0 && yy > 0)) return {};
    return xy / std::sqrt(xx) / std::sqrt(yy);
}

}  // namespace korven::studies
