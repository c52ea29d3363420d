#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "studies/row_text.hpp"
#include "studies/shown_columns.hpp"
#include "studies/summary/failure_rule.hpp"

namespace korven::studies {

/// Conditions as they are typed, for the rows of a study.
struct CondizioniLette {
    std::vector<Condizione> condizioni{};
    /// The first text that is none, and why; without it the conditions are as many as the texts.
    std::optional<std::pair<std::string, DifettoCondizione>> difetto{};
};

/// Reads conditions on fields and results that are numbers.
[[nodiscard]] CondizioniLette leggiCondizioni(std::span<const std::string> testi,
                                              const RigheStudio& righe);

/// A condition in words, "Spostamento massimo > 30 mm", translated.
/// @param valori  of a row
[[nodiscard]] std::string detta(const Condizione& condizione,
                                std::span<const ValoreMostrato> valori);

}  // namespace korven::studies
