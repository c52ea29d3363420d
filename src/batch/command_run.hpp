#pragma once

#include "batch/options.hpp"
#include "batch/outcome.hpp"

namespace korven::batch {

/// Does what the command line asks for and fills the outcome; progress, refusals and warnings go to
/// standard error.
/// @return the exit code: done, or the run was refused, found singular or stopped
/// @throws the exceptions of the logic; what `esito` then holds is true as far as it goes
[[nodiscard]] int esegui(const Opzioni& opzioni, Esito& esito);

}  // namespace korven::batch
