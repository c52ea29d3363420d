#pragma once

#include <optional>

#include "masks/grid_model.hpp"

// Which row of the project a row of an open table will be once it is confirmed: rows without data
// are left out, and anchors are sorted by depth.

namespace korven::panels {

/// Among the rows with data, from 1; nothing for a row without. The text of the open editor counts.
[[nodiscard]] std::optional<int> rigaConDati(const masks::ModelloGriglia& griglia, int riga);

/// The anchor that a row of the table of anchors will be, from 1; nothing for a row without data.
[[nodiscard]] std::optional<int> tiranteDellaRiga(const masks::ModelloGriglia& griglia, int riga);

}  // namespace korven::panels
