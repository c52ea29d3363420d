#pragma once

#include "batch/options/output_formats.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

class CorsaConsole;

/// Tells where the report goes when the rule for its name takes it away from the results.
void avvisaPosto();

/// Refuses, before anything is computed, a PDF name under which the project or another output would
/// be lost, outputs that a link would make one, and a printer that the system does not know.
/// @pre an AmbienteDisegno that paints lives, if pages are painted: asserted
/// @throws base::ErroreFile that names both files, or the printer
void controllaUscite(const FormatiRelazione& formati);

/// Runs the analysis, writes the report and all that was asked for besides, and names it in the
/// outcome. An interrupt keeps what was not begun from being written.
/// @return false when the run was refused, found singular or stopped
/// @throws base::ErroreFile if a file can't be written, or a printer fails
[[nodiscard]] bool produciRelazione(const FormatiRelazione& formati, CorsaConsole& corsa,
                                    Esito& esito);

}  // namespace korven::batch
