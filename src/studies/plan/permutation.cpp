#include "studies/plan/permutation.hpp"

#include <bit>
#include <cassert>

#include "studies/plan/random_words.hpp"

namespace korven::studies {

Permutazione::Permutazione(std::uint64_t seme, std::uint64_t ordine, std::uint64_t n)
    : seme_(seme), ordine_(ordine), n_(n) {
    assert(n >= 1 && n <= std::uint64_t{1} << 62U);
    const int bit = static_cast<int>(std::bit_width(n - 1));
    if (bit > 2) bitMeta_ = (bit + 1) / 2;
}

std::uint64_t Permutazione::operator()(std::uint64_t i) const {
    assert(i < n_);
    std::uint64_t x = rete(i);
    while (x >= n_) x = rete(x);
    return x;
}

std::uint64_t Permutazione::rete(std::uint64_t x) const {
    constexpr std::uint64_t giri = 8;
    const auto bit = static_cast<unsigned>(bitMeta_);
    const std::uint64_t maschera = (std::uint64_t{1} << bit) - 1;
    std::uint64_t alto = x >> bit, basso = x & maschera;
    for (std::uint64_t giro = 0; giro < giri; ++giro) {
        const auto f = paroleCasuali(seme_, Scopo::permutazione, {basso, giro, ordine_, n_})[0];
        const std::uint64_t nuovo = alto ^ (f & maschera);
        alto = basso;
        basso = nuovo;
    }
    return alto << bit | basso;
}

}  // namespace korven::studies
