#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

namespace korven::workbook {

/// The checks of the section: design value, resistance, use, stage and depth by the equilibrium;
/// design value and use of the report, where there is one; what the use goes to with ever finer
/// meshes; the verdict on all of it. A section without a check of shear has a row with the design
/// shear that is to be checked elsewhere. Without rows of a wall that does not stand.
[[nodiscard]] tables::Prospetto prospettoVerifiche(const dossier::Fascicolo& fascicolo);

}  // namespace korven::workbook
