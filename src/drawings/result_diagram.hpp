#pragma once

#include "analysis/diagrams.hpp"
#include "results/report_data.hpp"

namespace korven::drawings {

/// Draws one result along the wall on one sheet: the curves of all stages in one frame, each stage
/// in pen 14 + its number, or those of one stage alone.
///
/// The wall is the vertical line in the middle of the frame, its top above, uphill to the left.
/// Values count to the right, pressures to the left, so that uphill pressures are drawn uphill. The
/// scale of the shear is that of the last stage, and nothing is cut at the frame.
/// @param faseGrafico  the stage to draw, 0 for all
/// @throws base::ErroreValore for values beyond 10^12 or a wall beyond 10 km, which no sheet holds
void disegnaDiagramma(analysis::Diagramma diagramma, const results::DatiRelazione& dati,
                      int faseGrafico);

/// Draws from the result file that `fileCorrente` names, for the stage in `faseGrafico`.
/// `Progetto` is left as a reading of the file leaves it.
/// @throws base::ErroreFile if the results can't be read
void disegnaDiagramma(analysis::Diagramma diagramma);

}  // namespace korven::drawings
