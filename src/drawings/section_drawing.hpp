#pragma once

#include "project/project_data.hpp"

namespace korven::drawings {

/// One centimetre of the section on the sheet [cm]: 1 to 20.
inline constexpr double scalaSezione = 5.0 / 100;

/// Draws the structural section on the sheet of the diagrams: a view of the element in plan, the
/// wall running up the sheet with its uphill side to the left, its dimensions, and a box with the
/// materials. The data are drawn unchecked, a section or not; zeros draw an empty view.
void disegnaSezione(const project::DatiProgetto& dati);

}  // namespace korven::drawings
