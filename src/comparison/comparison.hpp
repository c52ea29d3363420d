#pragma once

#include <vector>

#include "comparison/compared_results.hpp"
#include "comparison/wall.hpp"
#include "project/differences.hpp"
#include "review/remark.hpp"

namespace korven::comparison {

/// Two walls, and in what they differ.
struct Confronto {
    Muro prima, dopo;
    std::vector<project::CampoDiverso> campi;  ///< of the files, as they are written
    std::vector<RisultatoConfrontato> risultati;
    /// Remarks that only the first has, and that only the second has. Of the same code, weight and
    /// fields they count as one, whatever numbers they tell.
    review::Osservazioni sparite, nuove;

    /// True if both files hold the same, and what is computed of them is the same too.
    [[nodiscard]] bool uguali() const;
    /// True if a result differs, as they are shown.
    [[nodiscard]] bool cambiaQualcosa() const;
    /// True if all stages of both stand: all results are known.
    [[nodiscard]] bool stanno() const;
};

[[nodiscard]] Confronto confronta(Muro prima, Muro dopo);

}  // namespace korven::comparison
