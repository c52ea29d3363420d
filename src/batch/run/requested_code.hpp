#pragma once

#include <optional>

#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"
#include "factors/requested_code.hpp"

namespace korven::batch {

/// The code that the command line names, as its file has it now.
/// @return nothing where it can't be used: the outcome has the reason and the exit code then
[[nodiscard]] std::optional<factors::NormaChiesta> normaChiesta(const Opzioni& opzioni,
                                                                Esito& esito);

}  // namespace korven::batch
