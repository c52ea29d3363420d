#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string_view>

#include "safety/margin.hpp"

namespace korven::answers {

/// The stable word for what is known of a stage: "equilibrio", "meccanismo", "non_definito",
/// "nessun_numero"; empty for a stage after one without equilibrium.
[[nodiscard]] std::string_view parolaEsito(const safety::MargineFase& fase);

/// "momento_positivo", "momento_negativo", "bielle", "armatura".
[[nodiscard]] const char* parola(results::Verifica verifica);

/// How safe a wall is: docs/json.md, `sicurezza`.
[[nodiscard]] nlohmann::ordered_json jsonMargine(const safety::Margine& margine);

}  // namespace korven::answers
