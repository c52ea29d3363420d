#include "studies/summary/moments.hpp"

#include <algorithm>
#include <cmath>

namespace korven::studies {

void Momenti::prendi(double x) {
    ++n_;
    const double prima = x - media_;
    media_ += prima / static_cast<double>(n_);
    scarti2_ += prima * (x - media_);
    minimo_ = n_ == 1 ? x : std::min(minimo_, x);
    massimo_ = n_ == 1 ? x : std::max(massimo_, x);
}

double Momenti::scartoTipo() const {
    return n_ < 2 ? 0 : std::sqrt(scarti2_ / static_cast<double>(n_ - 1));
}

}  // namespace korven::studies
