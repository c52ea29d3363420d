#include "base/axis_steps.hpp"

#include <algorithm>
#include <cmath>

#include "base/number_text.hpp"

namespace korven::base {

double passoAsse(double ampiezza, int massimo) {
    const double minimo = ampiezza / massimo;
    const double decade = std::pow(10, std::floor(std::log10(minimo)));
    for (const double passo : {1.0, 2.0, 5.0})
        if (passo * decade >= minimo) return passo * decade;
    return std::pow(10, std::ceil(std::log10(minimo)));
}

std::string numeroAsse(double valore, double passo) {
    // The logarithm of a power of ten may fall short of its whole number.
    constexpr double rotto = 1e-9;
    const int decimali = std::max(0, -static_cast<int>(std::floor(std::log10(passo) + rotto)));
    return testoDecimali(valore, decimali);
}

}  // namespace korven::base
