#pragma once

#include <optional>
#include <string>

#include "masks/grid_model.hpp"

// Which row of the project a row of an open table will be once it is confirmed: rows without data
// are left out, and anchors are sorted by depth.

namespace korven::panels {

/// The text of a cell; that of the open editor where it floats on it.
[[nodiscard]] const std::string& digitato(const masks::ModelloGriglia& griglia,
                                          masks::PostoGriglia posto);
[[nodiscard]] bool rigaHaDati(const masks::ModelloGriglia& griglia, int riga);

/// Among the rows with data, from 1; nothing for a row without. The text of the open editor counts.
[[nodiscard]] std::optional<int> rigaConDati(const masks::ModelloGriglia& griglia, int riga);

/// The same of the last row with data above one; nothing where there is none.
[[nodiscard]] std::optional<int> ultimaSopra(const masks::ModelloGriglia& griglia, int riga);

/// The anchor that a row of the table of anchors will be, from 1; nothing for a row without data.
[[nodiscard]] std::optional<int> tiranteDellaRiga(const masks::ModelloGriglia& griglia, int riga);

}  // namespace korven::panels
