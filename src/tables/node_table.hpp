#pragma once

#include "analysis/iteration_state.hpp"
#include "live/envelope.hpp"
#include "live/wall.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// The nodes of a stage: depth, displacement, moment, shear (of a wall with anchors just above and
/// just below each node), pressure of each side, net water, the
/// constant pressure where there is one, their sum, the state of each side in words, the layer. Of
/// a stage that does not stand there are no rows, and a note says why.
/// @param fase  from 1
[[nodiscard]] Prospetto prospettoNodi(const live::PareteViva& parete, int fase);

/// The nodes of the envelope of all stages that stand: smallest and largest values, of
/// shear on both sides of the nodes.
[[nodiscard]] Prospetto prospettoInviluppo(const live::PareteViva& parete);

/// A state in a word.
[[nodiscard]] std::string nomeStato(analysis::StatoLato stato);

/// Why a stage, or with 0 the envelope, has no numbers, in one sentence; empty where it has.
[[nodiscard]] std::string perche(const live::PareteViva& parete, int fase);

}  // namespace korven::tables
