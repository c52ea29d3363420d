#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "verification/check.hpp"

// The verification as `autoverifica` tells it.

namespace korven::batch {

/// The cases with what became of them, which points into them.
struct Autoverifica {
    std::vector<verification::Gruppo> gruppi;
    verification::EsitoVerifica esito;
};

/// A table for each group, with the reasons of what is not met below it; at the end the sum.
[[nodiscard]] std::string testoAutoverifica(const verification::EsitoVerifica& esito);

/// docs/json.md, `autoverifica`.
[[nodiscard]] nlohmann::ordered_json jsonAutoverifica(const verification::EsitoVerifica& esito);

}  // namespace korven::batch
