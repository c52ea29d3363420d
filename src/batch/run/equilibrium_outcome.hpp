#pragma once

#include <string>

#include "safety/told_stages.hpp"

// The equilibrium solution of a wall as `equilibrio` tells it.

namespace korven::batch {

/// A row a stage with its verdict, and below what is said of each that is no equilibrium.
[[nodiscard]] std::string testoEquilibrio(const safety::EquilibrioRaccontato& equilibrio);

/// docs/batch.md, `equilibrium --csv`: a row a node and stage in equilibrium, all digits of the
/// doubles.
[[nodiscard]] std::string csvEquilibrio(const safety::EquilibrioRaccontato& equilibrio);

}  // namespace korven::batch
