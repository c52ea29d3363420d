#pragma once

#include <optional>
#include <string>

#include "masks/grid_model.hpp"
#include "masks/values.hpp"
#include "project/project_data.hpp"

namespace korven::panels {

/// Cells of an open table that a calculation reads and that are empty, in rows with data.
struct CelleVuote {
    masks::PostoGriglia prossima;  ///< from the current cell on; behind the last one the first
    /// Which ones in the first row that has some, in how many rows there are more, and what
    /// confirming them does; translated.
    std::string parole;
};

/// @param dati  of the project that the table belongs to: they say what a calculation reads
/// @return nothing where there is none
[[nodiscard]] std::optional<CelleVuote> celleVuote(const masks::ModelloGriglia& griglia,
                                                   masks::NumeroMaschera numero,
                                                   const project::DatiProgetto& dati);

}  // namespace korven::panels
