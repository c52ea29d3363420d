#pragma once

#include <string>
#include <vector>

#include "document/blocks.hpp"
#include "factors/combinations.hpp"
#include "tables/result_table.hpp"
#include "workbook/sheet.hpp"

// A wall under the combinations of a code, for a window, a document and a workbook.

namespace korven::desk {

/// What the combinations come to, sentences: what the loads were taken for, the verdict with the
/// share of the resistance that is used most, why those that do not stand fall.
[[nodiscard]] std::vector<std::string> frasi(const factors::Combinazioni& combinazioni);

/// The factors of all its combinations with their sources, a row a factor of a combination.
[[nodiscard]] tables::Prospetto prospettoFonti(const factors::Norma& norma);

/// Whose numbers a document tells.
struct ProgettoDetto {
    std::string file;            ///< path; may be empty
    project::DatiProgetto dati;  ///< as they stand in the project, without the stiffness of the run
    std::string data;            ///< "2026-11-22", of the document
};

/// The document: verdict, all tables that have rows, notes, the factors with their sources.
[[nodiscard]] document::Documento documento(const factors::Combinazioni& combinazioni,
                                            const ProgettoDetto& progetto);

/// The same tables as the sheets of a workbook.
[[nodiscard]] workbook::CartellaFogli cartella(const factors::Combinazioni& combinazioni,
                                               const ProgettoDetto& progetto);

}  // namespace korven::desk
