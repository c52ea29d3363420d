#pragma once

#include <string>

#include "batch/outcome.hpp"

namespace korven::batch {

class CorsaConsole;

/// What a report leaves besides its mark-up. The names of plain text and word-processor file follow
/// from that of the mark-up.
struct UsciteRelazione {
    bool testo = false;
    bool documento = false;
    std::string pdf;        ///< file; empty: none
    std::string stampante;  ///< name of a printer; empty: none

    /// True when pages are painted, which needs fonts.
    [[nodiscard]] bool dipinte() const { return !pdf.empty() || !stampante.empty(); }
};

/// Refuses, before anything is computed, a PDF name under which the project or another output would
/// be lost, outputs that a link would make one, and a printer that the system does not know.
/// @pre an AmbienteDisegno that paints lives, if pages are painted
/// @throws base::ErroreFile that names both files, or the printer
void controllaUscite(const UsciteRelazione& uscite);

/// Runs the analysis, writes the report and all that was asked for besides, and names it in the
/// outcome. An interrupt keeps what was not begun from being written.
/// @return false when the run was refused, found singular or stopped
/// @throws base::ErroreFile if a file can't be written, or a printer fails
[[nodiscard]] bool scriviRelazione(const UsciteRelazione& uscite, CorsaConsole& corsa,
                                   Esito& esito);

}  // namespace korven::batch
