#pragma once

#include <string>
#include <vector>

#include "project/project_data.hpp"

// What the editors show: the values of a project as texts, in the units that the user sees. The way
// back is project/edited_tables.hpp; what is shown and confirmed unchanged comes back the same.
//
// A table is a list of its number of rows and the cells row after row, in the order of the editor's
// columns. A field form has its fields in the order of its mask.

namespace korven::commands {

[[nodiscard]] std::vector<std::string> testiStrati(const project::DatiProgetto& dati);
[[nodiscard]] std::vector<std::string> testiTiranti(const project::DatiProgetto& dati);
[[nodiscard]] std::vector<std::string> testiFasi(const project::DatiProgetto& dati);

/// The 18 wall parameters.
[[nodiscard]] std::vector<std::string> testiParatia(const project::DatiProgetto& dati);

/// The six headings and behind them the stage that the diagrams draw.
[[nodiscard]] std::vector<std::string> testiTitoli(const project::DatiProgetto& dati,
                                                   int faseGrafico);

/// The stage to draw, from the seventh text of the headings' form; 0 (all) when there is none.
[[nodiscard]] int faseDaTitoli(const std::vector<std::string>& testi);

}  // namespace korven::commands
