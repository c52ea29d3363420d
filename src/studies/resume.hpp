#pragma once

#include <cstdint>
#include <optional>

#include "base/partial_file.hpp"
#include "studies/runner.hpp"

namespace korven::studies {

/// Who looks at the rows that a file already has, as at those of a study that runs.
class LettoreRigheStudio {
 public:
    virtual ~LettoreRigheStudio() = default;
    /// @param i       the variant, from 0
    /// @param valori  of its row, as they are printed
    virtual void riga(std::uint64_t i, std::span<const double> valori) = 0;
};

/// What a file has of a study.
struct Ripresa {
    std::uint64_t righe = 0;  ///< variants that need not be computed any more
    std::uint64_t byte = 0;   ///< with the line of names; what comes after them is dropped
};

/// Looks at the whole lines of an interrupted study. Its first row and its last are computed again:
/// a study that gives the same bytes for both is the same study.
/// @param tratto    the variants that the file is for; the line of names comes with the first of
///                  all of them
/// @param lettore   gets the rows in order, also those of a file that turns out to be of another
///                  study
/// @return nothing for a file of another study, which is to be left alone
[[nodiscard]] std::optional<Ripresa> riprendi(const base::FileParziale& file, const Studio& studio,
                                              Tratto tratto, LettoreRigheStudio& lettore);

/// The line of names where the variants begin with the first of all; else nothing.
[[nodiscard]] std::string_view testata(const Studio& studio, Tratto tratto);

}  // namespace korven::studies
