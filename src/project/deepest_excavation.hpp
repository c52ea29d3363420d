#pragma once

#include "project/project_data.hpp"

namespace korven::project {

/// The depth of the deepest excavation of all stages [m], counted from the top of the wall; 0
/// without stages, or where all of them are above it.
[[nodiscard]] double scavoMassimo(const DatiProgetto& dati);

/// True where an excavation reaches or passes the toe: no soil is left before the wall. Springs and
/// anchors may hold it all the same, but none would build it.
/// @param scavo  its depth [m]
/// @return false for a wall without a length
[[nodiscard]] bool alPiede(const DatiProgetto& dati, double scavo);

/// True where that of some stage does.
[[nodiscard]] bool piedeScavato(const DatiProgetto& dati);

}  // namespace korven::project
