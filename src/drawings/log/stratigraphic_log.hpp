#pragma once

#include "base/dialogo.hpp"
#include "drawings/log/depth_scale.hpp"
#include "project/project_data.hpp"

namespace korven::drawings {

/// Draws the soil profile on one sheet of 20 by 28.5 cm: depths, graphic and description of the
/// layers, the uphill water table, profiles of their parameters, a depth scale. The headings are
/// above it as they were typed. The scale is such that the layers fill the height of the sheet.
/// @param dati           at least one layer, the last of them ending below 0: asserted
/// @param altezzaPagina  of the printer [cm] (depth_scale.hpp)
/// @throws base::ErroreFile   when a configuration, hatch or spill file can't be used
/// @throws base::ErroreIndice when a description needs more than 100 lines, or the texts are more
/// than the 2000 that a drawing holds
void disegnaStratigrafia(const project::DatiProgetto& dati, double altezzaPagina = altezzaPaginaA4);

/// Draws the layers of `Progetto`, or tells why that can't be: no project is open, it has no
/// layers, or the page is too low to show them.
/// @return true when there is a drawing
[[nodiscard]] bool disegnaStratigrafia(base::Dialogo& dialogo,
                                       double altezzaPagina = altezzaPaginaA4);

}  // namespace korven::drawings
