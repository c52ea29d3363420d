#pragma once

#include "live/wall.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

/// Tells in few words why a wall falls, in the notes and the empty cells of a table: cover and
/// stage say at length how it moves and what helps. A table of a wall that stands stays as it is.
void conMotiviBrevi(const live::PareteViva& parete, tables::Prospetto& prospetto);

}  // namespace korven::report
