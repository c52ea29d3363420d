#pragma once

#include "live/wall.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// All stages of the project: verdict, excavation, and of those that stand the largest displacement
/// in size, the largest moment in size and the largest shear in size, each with its sign and depth.
[[nodiscard]] Prospetto prospettoFasi(const live::PareteViva& parete);

}  // namespace korven::tables
