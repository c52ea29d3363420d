#pragma once

#include "live/wall.hpp"
#include "project/project_data.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// Every field of a project, a row each in the order of its file: what it is, its row in its table,
/// the value as it was typed and as the calculation takes it, both in the unit beside them, and its
/// name for programs. What nothing that is computed reads (`usoCampo`) has no second value.
///
/// The bars of a pile are typed through the factor of the lengths beside them and counted without
/// it: their two values differ.
///
/// @param scritti  as they stand in the file
/// @param parete   made of the same rows: with what a run or an option has put in their place
[[nodiscard]] Prospetto prospettoDati(const project::DatiProgetto& scritti,
                                      const live::PareteViva& parete);

}  // namespace korven::tables
