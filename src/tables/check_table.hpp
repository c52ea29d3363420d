#pragma once

#include "live/section_checks.hpp"
#include "live/wall.hpp"
#include "safety/margin.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// The checks of the section: design value, resistance, use, where the value is, verdict. Numbers,
/// digits and verdicts are those of the report; a note says so.
///
/// Where the specified run gives no report but the wall stands, the same rules are applied to the
/// equilibrium solution, the shear being the largest of all stages; a note says why. Of a wall that
/// does not stand, or without a section, there are no rows.
/// @param margine  of the same wall
[[nodiscard]] Prospetto prospettoVerifiche(const live::PareteViva& parete,
                                           const safety::Margine& margine);
/// The same rules applied to the equilibrium solution, whatever report there is.
/// @param controlli  of the same wall, without a report: asserted
[[nodiscard]] Prospetto prospettoVerifiche(const live::PareteViva& parete,
                                           const live::ControlliSezione& controlli);

/// A number with the digits of the report, which cuts where the other tables round.
[[nodiscard]] Cella cifre(double mostrato);

/// The share of a resistance that is used; nothing without a resistance.
[[nodiscard]] Cella uso(double progetto, double resistenza);

}  // namespace korven::tables
