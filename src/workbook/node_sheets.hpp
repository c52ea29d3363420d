#pragma once

#include <vector>

#include "dossier/dossier.hpp"
#include "workbook/sheet.hpp"

namespace korven::workbook {

/// The nodes of all stages, one below the other, with the stage in the first column; without rows
/// where no stage stands.
[[nodiscard]] tables::Prospetto prospettoNodiFasi(const dossier::Fascicolo& fascicolo);

/// The charts of the nodes: each quantity with a curve for each stage.
/// @param posto  of the sheet of `prospettoNodiFasi` in its workbook
void aggiungiGraficiFasi(const dossier::Fascicolo& fascicolo, std::size_t posto,
                         CartellaFogli& cartella);

/// The charts of the envelope: each quantity with its least and its greatest values.
/// @param posto  of the sheet of the envelope
void aggiungiGraficiInviluppo(const dossier::Fascicolo& fascicolo, std::size_t posto,
                              CartellaFogli& cartella);

}  // namespace korven::workbook
