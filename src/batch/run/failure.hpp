#pragma once

#include <string>
#include <vector>

#include "analysis/result_guard.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

enum CodiceUscita { fatto = 0, nonEseguito = 1, usoErrato = 2, ingressoRotto = 3 };

/// Tells the exception in flight on standard error and writes it into the outcome, with the exit
/// code that belongs to it:
///
/// | what went wrong | exit code |
/// | --- | --- |
/// | a value is too large to be shown: like a result that is not finite, no result file stays | 1 |
/// | a drawing was stopped by its user | 1 |
/// | two files of the command would become one | 2 |
/// | broken input, an index beyond a table, full disk, anything else | 3 |
///
/// @pre an exception derived from std::exception is being handled: asserted, but for its type
void raccontaGuasto(analysis::GuardiaRisultati& guardia, Esito& esito);

/// Tells on standard error why a command failed and writes it into the outcome.
void fallisci(int codice, const std::string& perche, Esito& esito);

/// Tells on standard error of files of an earlier run that a failed one has not updated, but for
/// those that this run has written, under whatever name.
/// @param rimasti  files that exist
void avvisaRimasti(const std::vector<std::string>& rimasti, Esito& esito);

/// Tells of the report and the text of an earlier run, which lie where those of this failed one
/// would be and may be taken for them. Whether they belong to the project as it now is nobody
/// knows; what this run has written itself is left out, under whatever name.
void avvisaRelazioniRimaste(Esito& esito);

}  // namespace korven::batch
