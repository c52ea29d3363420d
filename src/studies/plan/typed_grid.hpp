#pragma once

#include <span>
#include <string>
#include <string_view>

#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"
#include "studies/plan/grid.hpp"

namespace korven::studies {

/// "lunghezzaParatia=8:12:0.5": from 8 to 12 in steps of 0.5, in the shown unit; a step below 0
/// leads down. Blanks count nowhere.
/// @param dati  has the rows of the tables
[[nodiscard]] Letto<Asse> leggiAsse(const project::DatiProgetto& dati, std::string_view testo);

/// A grid as it is typed, an axis a text.
[[nodiscard]] Letto<Griglia> leggiGriglia(const project::DatiProgetto& dati,
                                          std::span<const std::string> assi);

}  // namespace korven::studies
