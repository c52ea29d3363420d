#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "comparison/wall.hpp"
#include "project/units.hpp"
#include "tables/result_table.hpp"

namespace korven::comparison {

/// A result of two walls.
struct RisultatoConfrontato {
    std::string_view codice;  ///< "momento_massimo", in every language the same
    std::string cosa;         ///< translated, without a unit
    project::Unita unita;
    int fase = 0;     ///< 0: of the wall, or the largest of all stages
    int tirante = 0;  ///< of an anchor, counted from 1
    /// In the shown unit. One that has no number shows a word or "-" and may say why.
    tables::Cella prima, dopo;

    /// True if they differ as they are shown.
    [[nodiscard]] bool cambia() const { return prima.testo != dopo.testo; }
    /// The second less the first, in the shown unit.
    [[nodiscard]] std::optional<double> differenza() const;
    /// By which share of the first, of 1, the size grows, whatever the sign of both; nothing where
    /// the first is shown as 0 or the two have different signs.
    [[nodiscard]] std::optional<double> quota() const;
};

/// What is known of both, or of one of them: first of the wall, then stage by stage. What no wall
/// has is left out. Stages and anchors are those of the same number.
[[nodiscard]] std::vector<RisultatoConfrontato> risultati(const Muro& prima, const Muro& dopo);

}  // namespace korven::comparison
