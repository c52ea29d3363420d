#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string_view>

#include "analysis/iteration_state.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "results/node_results.hpp"

// A stage along the wall, a list of numbers for each quantity (docs/json.md, `nodi`). The names are
// the same whichever way the stage was computed.

namespace korven::answers {

/// The stable word for the state of the soil, the same in every language: "elastico", "attivo",
/// "passivo".
[[nodiscard]] std::string_view parola(analysis::StatoLato stato);

/// Of the specified run, rounded to the digits of its result file.
[[nodiscard]] nlohmann::ordered_json jsonNodi(const results::NodiFase& fase);

/// Of the equilibrium solution, with the states of the soil; displacements with all their digits.
/// @param h  distance of the nodes [m]
[[nodiscard]] nlohmann::ordered_json jsonNodi(const equilibrium::FaseEquilibrio& fase, double h);

}  // namespace korven::answers
