#pragma once

#include "live/live_project.hpp"
#include "safety/margin.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// The anchors: depth, kind, prestress, the force in each stage and the largest, by the certain
/// equilibrium; beside it the force that the report shows. A cell of a stage in which the anchor is
/// not in place, or which does not stand, is empty.
/// @param margine  of the same wall; nullptr while it is being computed: the report's forces are
///                 then "..."
[[nodiscard]] Prospetto prospettoTiranti(const live::PareteViva& parete,
                                         const safety::Margine* margine);

/// The same of the open project: "..." only as long as an answer is to come, nothing for a wall of
/// which there is none.
/// @pre a project is open: asserted
[[nodiscard]] Prospetto prospettoTiranti(const live::ProgettoVivo& vivo);

}  // namespace korven::tables
