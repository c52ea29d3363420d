#pragma once

#include <cstdint>

namespace korven::studies {

/// A random order of 0 to n-1 of which any place is known without the others: a Feistel network
/// of eight rounds over the next even number of bits, gone through again while its result is n or
/// more (cycle walking); the rounds are keyed by the seed and the number of the order.
///
/// Source: Luby & Rackoff (1988), How to construct pseudorandom permutations from pseudorandom
/// functions; Black & Rogaway (2002), Ciphers with arbitrary finite domains.
class Permutazione {
 public:
    /// @param n  1 to 2^62; asserted
    Permutazione(std::uint64_t seme, std::uint64_t ordine, std::uint64_t n);

    /// What stands in place i, 0 <= i < n; each number from 0 to n-1 stands in one place.
    [[nodiscard]] std::uint64_t operator()(std::uint64_t i) const;

 private:
    [[nodiscard]] std::uint64_t rete(std::uint64_t x) const;

    std::uint64_t seme_, ordine_, n_;
    int bitMeta_ = 1;  // of each half
};

}  // namespace korven::studies
