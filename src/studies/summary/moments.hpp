#pragma once

#include <cstdint>

namespace korven::studies {

/// Mean and standard deviation of numbers that come one after the other, without keeping them and
/// without the loss of digits that sums of squares have.
///
/// Source: Welford (1962), Note on a method for calculating corrected sums of squares and products.
class Momenti {
 public:
    void prendi(double x);

    [[nodiscard]] std::uint64_t numero() const { return n_; }
    /// These four are 0 without numbers.
    [[nodiscard]] double media() const { return media_; }
    /// With n - 1 below the sum of squares; 0 of a single number.
    [[nodiscard]] double scartoTipo() const;
    [[nodiscard]] double minimo() const { return minimo_; }
    [[nodiscard]] double massimo() const { return massimo_; }

 private:
    std::uint64_t n_ = 0;
    double media_ = 0, scarti2_ = 0, minimo_ = 0, massimo_ = 0;
};

}  // namespace korven::studies
