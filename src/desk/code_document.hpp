#pragma once

#include <string>
#include <vector>

#include "desk/project_document.hpp"
#include "factors/combinations.hpp"
#include "tables/result_table.hpp"

// A wall under the combinations of a code, for a window, a document and a workbook.

namespace korven::desk {

/// What the combinations come to, sentences: what the loads were taken for, the verdict with the
/// share of the resistance that is used most, why those that do not stand fall.
[[nodiscard]] std::vector<std::string> frasi(const factors::Combinazioni& combinazioni);

/// The factors of all its combinations with their sources, a row a factor of a combination.
[[nodiscard]] tables::Prospetto prospettoFonti(const factors::Norma& norma);

/// The document: verdict, all tables that have rows, notes, the factors with their sources.
[[nodiscard]] document::Documento documento(const factors::Combinazioni& combinazioni,
                                            const ProgettoDetto& progetto);

/// The same tables as the sheets of a workbook.
[[nodiscard]] workbook::CartellaFogli cartella(const factors::Combinazioni& combinazioni,
                                               const ProgettoDetto& progetto);

}  // namespace korven::desk
