#pragma once

#include "project/section.hpp"

// The views of the four kinds of section, each with its dimensions, about the middle of the frame.
// They are drawn with the pen in use.

namespace korven::drawings {

/// Middle of the views on the sheet [cm].
inline constexpr double xVista = 10;
inline constexpr double yVista = 13;

/// Bars of one row or ring that are drawn at most. More of them run into one another.
inline constexpr int massimoFerriDisegnati = 1000;

/// A strip of 2 m of the diaphragm with the bars of both faces: as many as whole spacings fit into
/// it, so a spacing above 2 m shows none, and a face without spacing has none.
void vistaDiaframma(const project::Sezione& sezione);

/// Three tubes filled with concrete at their spacing.
void vistaPali(const project::Sezione& sezione);

/// One wave of the sheet pile in outline.
void vistaPalancola(const project::Sezione& sezione);

/// Three reinforced piles at their spacing, each with stirrup and bars. The bars are counted by the
/// stored number, which is a tenth of what the editors show: below 1 there are none.
void vistaPaliArmati(const project::Sezione& sezione);

}  // namespace korven::drawings
