#pragma once

#include <span>
#include <string>
#include <vector>

#include "studies/shown_columns.hpp"
#include "studies/summary/summary.hpp"

namespace korven::studies {

/// How the values of a row and the numbers of a summary are told, translated.
struct NomiRiassunto {
    std::vector<ValoreMostrato> valori;  ///< of a row
    std::vector<std::string> motivi;     ///< by `EsitoRiga::motivo`
    bool campioni = false;      ///< the variants are samples: how often they fail is a probability
    bool indipendenti = false;  ///< and have no part in each other: it has an interval
};

/// What a study comes to, a line a fact, translated: what fails and how probable that is, where
/// walls fall, what governs those that stand. Lines that begin with two blanks are the parts of the
/// one above them.
/// @pre the names are those of the summary's row: asserted
[[nodiscard]] std::vector<std::string> fattiRiassunto(const Riassunto& riassunto,
                                                      const FormaRiga& forma,
                                                      const NomiRiassunto& nomi);
/// Of samples how the values of fields and results are spread, and how they go together, as tables
/// for a font of one width; of others nothing.
[[nodiscard]] std::vector<std::string> tavoleInTesto(const Riassunto& riassunto,
                                                     const FormaRiga& forma,
                                                     const NomiRiassunto& nomi);

/// A number with five digits, as a summary tells it; "-" for none.
[[nodiscard]] std::string cinqueCifre(double valore);

}  // namespace korven::studies
