#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "safety/margin.hpp"

// The margin as `sicurezza` tells it. Every form has a row a stage, those without numbers too.

namespace korven::batch {

/// The stable word for what is known of a stage: "equilibrio", "meccanismo", "non_definito",
/// "nessun_numero"; empty for a stage after one without equilibrium.
[[nodiscard]] std::string_view parolaEsito(const safety::MargineFase& fase);

/// The tables of the command, with what the wall comes to in words between them.
[[nodiscard]] std::string testoMargine(const safety::Margine& margine);

/// docs/json.md, `sicurezza`.
[[nodiscard]] nlohmann::ordered_json jsonMargine(const safety::Margine& margine);

/// docs/batch.md, `safety --csv`: a row a stage, all digits of the doubles.
[[nodiscard]] std::string csvMargine(const safety::Margine& margine);

}  // namespace korven::batch
