#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

namespace korven::workbook {

/// The anchors with the force in each stage, the largest with its stage, that at the end of the
/// stage that puts the anchor in place, and, where there is a report, its number in the last
/// column.
[[nodiscard]] tables::Prospetto prospettoTiranti(const dossier::Fascicolo& fascicolo);

}  // namespace korven::workbook
