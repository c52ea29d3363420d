#pragma once

#include "analysis/result_guard.hpp"
#include "batch/options/options.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

/// Draws what the command names, a result diagram, the section, the stratigraphic log or the
/// samples of all hatches, and writes it to the files asked for. A diagram brings the results up to
/// date first.
/// @return the exit code
/// @throws base::ErroreFile if a file can't be read or written
[[nodiscard]] int disegna(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia,
                          Esito& esito);

/// Writes the report in each of its forms and every drawing of the project.
/// @return the exit code
/// @throws base::ErroreFile if a file can't be read or written
[[nodiscard]] int tutto(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito);

}  // namespace korven::batch
