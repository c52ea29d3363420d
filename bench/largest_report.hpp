#pragma once

#include <string>

#include "project/project_data.hpp"

namespace korven::bench {

inline constexpr int fasi = project::massimoFasi;
inline constexpr int nNodi = 250;

/// The mark-up of the largest report there can be, that of a wall with all the stages that a
/// project holds at the finest mesh: about 5000 rows of results. Displacements and moments are made
/// up; what they are does not matter to the layout, how long their numbers are does.
[[nodiscard]] std::string relazionePiuLunga();

}  // namespace korven::bench
