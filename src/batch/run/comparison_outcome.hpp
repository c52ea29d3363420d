#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "comparison/comparison.hpp"

// A comparison as `confronta` tells it.

namespace korven::batch {

/// What is known of both walls, the fields that differ, the results, the remarks.
[[nodiscard]] std::string testoConfronto(const comparison::Confronto& confronto);

/// docs/json.md, `confronta`.
[[nodiscard]] nlohmann::ordered_json jsonConfronto(const comparison::Confronto& confronto);

}  // namespace korven::batch
