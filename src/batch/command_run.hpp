#pragma once

#include "analysis/result_guard.hpp"
#include "batch/options/options.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

/// Does what the command line asks for and fills the outcome; progress, refusals and warnings go to
/// standard error.
/// @param guardia  keeps the result file from the comparison on, until what is told of it is told
/// @return the exit code: done, or the run was refused, found singular or stopped
/// @throws the exceptions of the logic; what `esito` then holds is true as far as it goes
[[nodiscard]] int esegui(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito);

}  // namespace korven::batch
