#pragma once

#include <vector>

#include "dossier/dossier.hpp"
#include "workbook/sheet.hpp"

namespace korven::workbook {

/// What a reader must know before the numbers: project, program, file with its imprint, date, mesh,
/// options, whose numbers these are, whether the wall stands; then the notes of the other sheets,
/// and why they have empty cells, each reason once.
/// @param altri  the other sheets
[[nodiscard]] tables::Prospetto prospettoProgetto(const dossier::Fascicolo& fascicolo,
                                                  const std::vector<Foglio>& altri);

}  // namespace korven::workbook
