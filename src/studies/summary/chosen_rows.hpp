#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace korven::studies {

/// At most so many of the variants of a study, chosen at random: those whose hashes, of their
/// number and the seed, are the smallest. They are the same in whatever order the variants come,
/// and memory does not grow with the study.
class RigheScelte {
 public:
    static constexpr std::size_t capienzaIntera = 100'000;

    /// @param valori  of a row
    RigheScelte(std::uint64_t seme, std::size_t valori, std::size_t capienza = capienzaIntera);

    /// Looks at a variant, each once.
    void prendi(std::uint64_t i, std::span<const double> riga);

    [[nodiscard]] std::size_t numero() const { return tenute_.size(); }
    /// A value of all chosen rows, in the order of the variants.
    [[nodiscard]] std::vector<double> colonna(std::size_t j) const;

 private:
    struct Tenuta {
        std::uint64_t impronta, variante;
        std::size_t posto;  ///< of its values

        // By the hash first: the largest is at the top of the heap, the one that leaves.
        auto operator<=>(const Tenuta&) const = default;
    };

    std::uint64_t seme_;
    std::size_t larghezza_, capienza_;
    std::vector<Tenuta> tenute_;  ///< a heap
    std::deque<double> valori_;   ///< grows without being copied
};

}  // namespace korven::studies
