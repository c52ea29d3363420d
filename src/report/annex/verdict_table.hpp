#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

/// One line for each of: equilibrium of all stages, bending, shear, remarks of each grave weight.
/// A check of the section fails if it does by the numbers of the equilibrium or of the report; both
/// are told where they are not the same. A note says why there is no report.
[[nodiscard]] tables::Prospetto prospettoVerdetti(const dossier::Fascicolo& fascicolo);

}  // namespace korven::report
