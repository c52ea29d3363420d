#pragma once

#include "factors/factor_set.hpp"
#include "project/project_data.hpp"

namespace korven::factors {

/// By how much stage k is dug deeper than planned [m]: the set's share of the height that the wall
/// holds, not more than the set's most. The height is that of the ground above the excavation or,
/// with a support, from the lowest one to the excavation: an anchor in place above it, the hinge of
/// the head. An anchor at the very bottom of the excavation supports nothing of it yet. 0 for a
/// stage without an excavation.
[[nodiscard]] double scavoImprevisto(const project::DatiProgetto& dati, int k,
                                     const Fattori& fattori);

/// Digs stage k so much deeper. Water that stands in the pit stays where it is; a water table at
/// the bottom or below, which the deeper bottom comes to, is lowered to it, as nobody digs below
/// the water that is kept down.
/// @return by how much [m]
double scavaDiPiu(project::DatiProgetto& dati, int k, const Fattori& fattori);

}  // namespace korven::factors
