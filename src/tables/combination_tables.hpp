#pragma once

#include "factors/combinations.hpp"
#include "tables/result_table.hpp"

// A wall under the combinations of a code, as tables. Moments, shears and forces of anchors have
// the factor on effects, displacements have none.

namespace korven::tables {

/// A row a combination: by what each quantity was divided or multiplied in the calculation, and by
/// how much the stage that is dug deepest beyond its plan is.
[[nodiscard]] Prospetto prospettoFattori(const factors::Combinazioni& combinazioni);

/// A row a combination, the largest of all stages with the verdict, and one of the envelope.
[[nodiscard]] Prospetto prospettoEffetti(const factors::Combinazioni& combinazioni);

/// A row a check of each combination that stands; none without checks.
[[nodiscard]] Prospetto prospettoVerifiche(const factors::Combinazioni& combinazioni);

/// A row an anchor that is in place in some stage, with its largest force under each combination
/// and of all; none without anchors.
/// @param dati  of the wall: struts are called struts
[[nodiscard]] Prospetto prospettoTiri(const factors::Combinazioni& combinazioni,
                                      const project::DatiProgetto& dati);

/// The factors of a combination with where each comes from.
[[nodiscard]] Prospetto prospettoFonti(const factors::Combinazione& combinazione);

}  // namespace korven::tables
