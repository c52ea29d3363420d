#pragma once

#include <cstddef>

#include "desk/study_result.hpp"
#include "tables/result_table.hpp"

// What a study comes to, as tables in shown units.

namespace korven::desk {

/// A row a variant: its number, what became of it, its fields, the results that are numbers and
/// that a variant has. Beyond `massimo` rows a note says so.
[[nodiscard]] tables::Prospetto prospettoVarianti(const StudioFatto& fatto, std::size_t massimo);

/// What a study comes to of random samples; of others both tables are without rows.
struct ProspettiCampioni {
    tables::Prospetto distribuzioni;  ///< how each field and each result is spread
    tables::Prospetto correlazioni;   ///< of ranks: how each result goes with each field
};
[[nodiscard]] ProspettiCampioni prospettiCampioni(const StudioFatto& fatto);

}  // namespace korven::desk
