#pragma once

#include "project/project_data.hpp"
#include "safety/margin.hpp"

namespace korven::drawings {

/// Draws the wall in section into a part of the sheet [cm]: ground and its slope, water levels of
/// the last stage, anchors, excavation of every stage, and of the stage `decisiva` where the
/// passive side is at its limit and how the wall would move at its factor. Depths are to scale.
/// @param decisiva  nullptr: none
void disegnaMuro(const project::DatiProgetto& dati, const safety::MargineFase* decisiva, double x1,
                 double y1, double x2, double y2);

}  // namespace korven::drawings
