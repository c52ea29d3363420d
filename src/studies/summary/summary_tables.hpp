#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "studies/shown_columns.hpp"
#include "studies/summary/summary.hpp"

namespace korven::studies {

/// A table of numbers of a summary, a row for a value of the rows of the study.
struct TavolaRiassunto {
    struct Riga {
        std::string nome;  ///< of a field or a result, translated
        std::vector<std::optional<double>> valori;
    };
    std::vector<std::string> testa;  ///< of the numbers
    std::vector<Riga> righe;
};

struct TavoleRiassunto {
    /// How many variants have a field or a result, then its mean, standard deviation, minimum,
    /// quantiles and maximum, in the shown unit, which the name has. Of those that some variant
    /// has.
    TavolaRiassunto distribuzioni;
    /// The rank correlation of each result with each field, in the order of the fields. Of those
    /// that have one.
    TavolaRiassunto correlazioni;
};

/// How fields and results are spread among samples, and how they go together.
/// @param valori  of a row of the study, the fields first
[[nodiscard]] TavoleRiassunto tavoleRiassunto(const Riassunto& riassunto, const FormaRiga& forma,
                                              std::span<const ValoreMostrato> valori);

/// "50 %".
[[nodiscard]] std::string nomeQuantile(double quota);

}  // namespace korven::studies
