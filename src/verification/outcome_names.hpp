#pragma once

#include <optional>
#include <string_view>

#include "equilibrium/staged_equilibrium.hpp"

namespace korven::verification {

/// What is known of a stage as the file of a case writes it; nothing for a word that is none.
[[nodiscard]] std::optional<equilibrium::EsitoFase> esito(std::string_view nome);

}  // namespace korven::verification
