#pragma once

#include <vector>

#include "batch/options/command.hpp"

namespace korven::batch {

// The rows of the commands, each in the file of its own.
[[nodiscard]] RigaComando comandoCalcola();
[[nodiscard]] RigaComando comandoRelazione();
[[nodiscard]] RigaComando comandoAllegato();
[[nodiscard]] RigaComando comandoVerifica();
[[nodiscard]] RigaComando comandoEquilibrio();
[[nodiscard]] RigaComando comandoSicurezza();
[[nodiscard]] RigaComando comandoSerie();
[[nodiscard]] RigaComando comandoCombinazioni();
[[nodiscard]] RigaComando comandoConfronta();
[[nodiscard]] RigaComando comandoAutoverifica();
[[nodiscard]] RigaComando comandoTabelle();
[[nodiscard]] RigaComando comandoDiagramma();
[[nodiscard]] RigaComando comandoSezione();
[[nodiscard]] RigaComando comandoStratigrafia();
[[nodiscard]] RigaComando comandoCampiture();
[[nodiscard]] RigaComando comandoTutto();
[[nodiscard]] RigaComando comandoCampi();
[[nodiscard]] RigaComando comandoImposta();
[[nodiscard]] RigaComando comandoLunghezza();
[[nodiscard]] RigaComando comandoBloccaggio();

/// All commands of korven32c, in the order of the help.
[[nodiscard]] const std::vector<RigaComando>& comandi();

}  // namespace korven::batch
