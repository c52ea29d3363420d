#pragma once

#include "project/project_data.hpp"
#include "review/remark.hpp"
#include "safety/margin.hpp"

namespace korven::review {

/// Computes a wall in memory, by the equilibrium solution and as a report would show it, and tells
/// what is odd or dangerous about what it comes to. By weight, else in the order of the checks.
/// Nothing is told of a project that a run would refuse, of which `esaminaProgetto` tells why.
///
/// No file is read or written. The time is bounded, so that it may be called after every edit: some
/// milliseconds at 50 segments, and where the run that the report comes from would take more than
/// about a second it is left out, and the report is not compared with the statics.
/// @param dati  as it is typed; a stiffness of 0 is taken from the section
/// @param nSeg  segments of the wall; nothing is told unless a run could take them
[[nodiscard]] Osservazioni esaminaRisultati(const project::DatiProgetto& dati, int nSeg);

/// The same for whoever has computed the margin already.
/// @param dati  of the margin, with the bending stiffness of its run
[[nodiscard]] Osservazioni esaminaRisultati(const project::DatiProgetto& dati,
                                            const safety::Margine& margine);

}  // namespace korven::review
