#pragma once

#include <functional>

#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

/// Reads the project of the command line into `Progetto`, with what the command line sets in it.
/// @throws base::ErroreFile if it can't be read
void preparaProgetto(const Opzioni& opzioni, Esito& esito);

/// Opens the project and makes the folder for the results, then runs the command between the
/// remarks on the project: what looks like a slip is told before the program computes with it;
/// after a run that was refused, what else prevents it. An interrupt stops the run.
/// @param corsa  gives the exit code
/// @return the same
[[nodiscard]] int calcolaConRilievi(const Opzioni& opzioni, Esito& esito,
                                    const std::function<int()>& corsa);

}  // namespace korven::batch
