#pragma once

#include <vector>

#include "batch/options/command.hpp"

namespace korven::batch {

// The rows of the commands, each in the file of its own.
[[nodiscard]] RigaComando calcola();
[[nodiscard]] RigaComando relazione();
[[nodiscard]] RigaComando verifica();
[[nodiscard]] RigaComando diagramma();
[[nodiscard]] RigaComando sezione();
[[nodiscard]] RigaComando stratigrafia();
[[nodiscard]] RigaComando campiture();
[[nodiscard]] RigaComando tutto();

/// All commands of korven32c, in the order of the help.
[[nodiscard]] const std::vector<RigaComando>& comandi();

}  // namespace korven::batch
