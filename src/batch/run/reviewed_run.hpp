#pragma once

#include <functional>

#include "analysis/run_start.hpp"
#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

/// Reads the project of the command line into `Progetto`, with what the command line sets in it.
/// @throws base::ErroreFile if it can't be read
void preparaProgetto(const Opzioni& opzioni, Esito& esito);

/// Computes a wall in memory and adds the remarks on what it comes to, unless a run would be
/// refused or its user has stopped it.
/// @param dati  as typed, with the bending stiffness of the run
/// @return those that were added
review::Osservazioni aggiungiRisultati(const project::DatiProgetto& dati, Esito& esito);

/// Opens the project and makes the folder for the results, then runs the command between the
/// remarks on the project: what makes its numbers worthless is told before the program computes
/// with it; after a run that was refused, what else prevents it; then what is dangerous about the
/// results, and how many more remarks there are. An interrupt stops the run and has the last word.
/// @param corsa  gives the exit code
/// @return the same or, with `--severo`, what follows from the remarks (`conSeverita`)
[[nodiscard]] int calcolaConRilievi(const Opzioni& opzioni, Esito& esito,
                                    const std::function<int()>& corsa);

/// The same for a command that follows the wall in memory and writes no result file, so that no
/// folder is made for one: begins as a report does and refuses whatever that refuses, with the same
/// words and codes.
/// @param calcolo  gives the exit code; told what a run begins with
[[nodiscard]] int calcolaInMemoria(
    const Opzioni& opzioni, Esito& esito,
    const std::function<int(const analysis::Avvio&, base::Dialogo&)>& calcolo);

}  // namespace korven::batch
