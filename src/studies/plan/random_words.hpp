#pragma once

#include <array>
#include <cstdint>

// Random numbers by counting: a word depends on a key and a counter alone, so that any thread has
// those of any variant at once, in any order, and no state is handed on.

namespace korven::studies {

/// What random words are for: each use has a sequence of its own.
enum class Scopo : std::uint64_t {
    valori = 1,        ///< values of samples
    permutazione = 2,  ///< which part of its range a field of a hypercube takes
    scelta = 3,        ///< which variants quantiles are taken from
};

using Parole = std::array<std::uint64_t, 4>;

/// Four random words of 64 bits: Philox4x64-10 with the key (seme, scopo).
/// Source: Salmon, Moraes, Dror & Shaw (2011), Parallel random numbers: as easy as 1, 2, 3.
[[nodiscard]] Parole paroleCasuali(std::uint64_t seme, Scopo scopo, const Parole& contatore);

/// A random word as a number between 0 and 1, neither of which it ever is; evenly spaced and
/// symmetric to 1/2.
[[nodiscard]] double traZeroEUno(std::uint64_t parola);

}  // namespace korven::studies
