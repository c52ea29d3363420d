#pragma once

#include "tables/result_table.hpp"
#include "verification/check.hpp"

namespace korven::verification {

/// A row for each expected value and each method that computes it; the notes tell why a case that
/// is not met is known to differ.
[[nodiscard]] tables::Prospetto prospetto(const EsitoGruppo& gruppo);

}  // namespace korven::verification
