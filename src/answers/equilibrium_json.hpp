#pragma once

#include <nlohmann/json_fwd.hpp>

#include "safety/told_stages.hpp"

namespace korven::answers {

/// The equilibrium solution of a wall: docs/json.md, `equilibrio`.
[[nodiscard]] nlohmann::ordered_json jsonEquilibrio(const safety::EquilibrioRaccontato& equilibrio);

}  // namespace korven::answers
