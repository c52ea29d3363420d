#pragma once

#include <span>

#include "base/twin_names.hpp"
#include "dossier/dossier.hpp"
#include "workbook/sheet.hpp"

namespace korven::workbook {

/// The names of all sheets, in their order, whatever the project.
[[nodiscard]] std::span<const base::Gemelli> nomiFogli();

/// A computed project as sheets, in the language in force: what it is, input, stages, nodes of all
/// stages, envelope, anchors, checks, the error of the mesh, remarks. All numbers of stages are
/// those of the certain equilibrium; the last column of the anchors, which is headed so, is the
/// report's. What cannot be computed leaves a table without rows, or empty cells, and a note that
/// says why.
[[nodiscard]] CartellaFogli fogli(const dossier::Fascicolo& fascicolo);

}  // namespace korven::workbook
