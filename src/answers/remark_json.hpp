#pragma once

#include <nlohmann/json_fwd.hpp>

#include "review/remark.hpp"

namespace korven::answers {

/// The remarks on a project: docs/json.md, `osservazioni`.
[[nodiscard]] nlohmann::ordered_json jsonOsservazioni(const review::Osservazioni& osservazioni);

}  // namespace korven::answers
