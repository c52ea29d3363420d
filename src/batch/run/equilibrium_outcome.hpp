#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "analysis/iteration_state.hpp"
#include "safety/told_stages.hpp"

// The equilibrium solution of a wall as `equilibrio` tells it.

namespace korven::batch {

/// A row a stage with its verdict, and below what is said of each that is no equilibrium.
[[nodiscard]] std::string testoEquilibrio(const safety::EquilibrioRaccontato& equilibrio);

/// The stable word for the state of the soil, the same in every language: "elastico", "attivo",
/// "passivo".
[[nodiscard]] std::string_view parola(analysis::StatoLato stato);

/// docs/json.md, `equilibrio`.
[[nodiscard]] nlohmann::ordered_json jsonEquilibrio(const safety::EquilibrioRaccontato& equilibrio);

/// docs/batch.md, `equilibrium --csv`: a row a node and stage in equilibrium, all digits of the
/// doubles.
[[nodiscard]] std::string csvEquilibrio(const safety::EquilibrioRaccontato& equilibrio);

}  // namespace korven::batch
