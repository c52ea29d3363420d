#pragma once

#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"

// What a command that computes says of the remarks on standard error, silent or not.

namespace korven::batch {

/// A line for each of weight `pericolo`, but for what the run has told itself.
void raccontaPericoli(const Esito& esito, const review::Osservazioni& osservazioni);
inline void raccontaPericoli(const Esito& esito) { raccontaPericoli(esito, esito.osservazioni); }

/// After a run that was refused: a line for each that prevents one, but for the reason that the run
/// has told itself.
void raccontaImpedimenti(const Esito& esito);

/// How many there are to be looked at, in one line with the command that lists them; nothing if
/// there are none, or with `--silenzioso`.
void raccontaDaVedere(const Opzioni& opzioni, const Esito& esito);

/// The command that lists all remarks of the project of the command line, as a shell takes it:
/// "korven32c verifica --calcola muro.kvd".
[[nodiscard]] std::string comandoElenco(const Opzioni& opzioni);

/// The exit code of a command after its remarks. With `--severo` one that was done ends with 1 if
/// there are remarks of weight `pericolo`, which is told and noted in the outcome.
[[nodiscard]] int conSeverita(const Opzioni& opzioni, Esito& esito, int codice);

}  // namespace korven::batch
