#pragma once

#include <functional>

#include "analysis/diagrams.hpp"
#include "analysis/progress.hpp"
#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"

// An output command refuses without an open project, brings the results up to date, and goes on
// only when `erroreCalcolo` is false.
//
// A result too large to be shown is told in a box like a refused run, sets `erroreCalcolo` and
// takes its result file with it. A result file or report that can't be written is told likewise.
// All of them throw base::ErroreFile if a file can't be read, or a drawing not be stored.

namespace korven::commands {

/// What an output works with. The form that it shows is plugged in: asserted.
struct PorteUscita {
    base::Dialogo& dialogo;
    analysis::Avanzamento& avanzamento;
    const FormeProgramma& forme;
    /// Told that no run is going on, before anything is shown: the project may have taken a
    /// stiffness from one.
    std::function<void()> calcolato = [] {};
};

/// The form or export that a report goes to, one of four.
using Destinazione = std::function<void(const std::string&)> FormeProgramma::*;

/// The report, handed over with the pointer an hourglass throughout.
void produciRelazione(Destinazione destinazione, const PorteUscita& porte);

/// A diagram, in the viewer of the drawing that the run has made.
void produciDiagramma(analysis::Diagramma quale, const PorteUscita& porte);

/// The drawing of the section, which needs no run.
void produciSezione(const PorteUscita& porte);

/// The stratigraphic log, which needs no run and refuses in words of its own.
void produciStratigrafia(const PorteUscita& porte);

}  // namespace korven::commands
