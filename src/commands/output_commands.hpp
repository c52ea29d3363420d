#pragma once

#include "analysis/progress.hpp"
#include "base/dialogo.hpp"
#include "commands/program_forms.hpp"

namespace korven::commands {

/// An output command: refuses without an open project, brings the results up to date, and goes on
/// only when `erroreCalcolo` is false: the report commands to the form or export of the report
/// with the pointer an hourglass throughout, the diagram commands to the viewer of the drawing that
/// the run has made. The drawings of the section and of the layers need no run.
///
/// A result too large to be shown is told in a box like a refused run, sets `erroreCalcolo` and
/// takes its result file with it. A result file or report that can't be written is told likewise.
/// @pre one of the ten output commands, whose form is plugged in: asserted
/// @throws base::ErroreFile if a file can't be read, or a drawing not be stored
void produci(Comando comando, base::Dialogo& dialogo, analysis::Avanzamento& avanzamento,
             const FormeProgramma& forme);

}  // namespace korven::commands
