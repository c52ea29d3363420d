#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "factors/combinations.hpp"

// A wall under the combinations of a code as `combinazioni` tells it. Every form has a row a
// combination, those that do not stand too, and the envelope.

namespace korven::batch {

/// The tables of the command with its notes.
/// @param dati  the project
[[nodiscard]] std::string testoCombinazioni(const factors::Combinazioni& combinazioni,
                                            const project::DatiProgetto& dati);

/// docs/json.md, `combinazioni`.
[[nodiscard]] nlohmann::ordered_json jsonCombinazioni(const factors::Combinazioni& combinazioni);

/// docs/batch.md, `combinations --csv`: all digits of the doubles.
[[nodiscard]] std::string csvCombinazioni(const factors::Combinazioni& combinazioni);

}  // namespace korven::batch
