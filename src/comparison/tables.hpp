#pragma once

#include <string>
#include <vector>

#include "comparison/comparison.hpp"
#include "tables/result_table.hpp"

// What a comparison tells, as sentences and tables; all translated.

namespace korven::comparison {

/// Of both walls, in this order, a sentence each: name, what is known of its stages, segments.
[[nodiscard]] std::vector<std::string> frasiMuri(const Confronto& confronto);

/// Where the numbers come from; and that nothing differs, where nothing does.
[[nodiscard]] std::vector<std::string> frasi(const Confronto& confronto);

/// The fields that differ, with both values; a note says that there is none.
[[nodiscard]] tables::Prospetto prospettoCampi(const Confronto& confronto);

/// The results of the walls, with both values, their difference, and that in % of the first.
[[nodiscard]] tables::Prospetto prospettoRisultati(const Confronto& confronto);

/// The same by stage; without rows where no stage of either is known.
[[nodiscard]] tables::Prospetto prospettoFasi(const Confronto& confronto);

/// The remarks that one of them has, as rows; a note says that there is none.
[[nodiscard]] tables::Prospetto prospettoOsservazioni(const Confronto& confronto);

/// The same, a line each: "solo prima: pericolo: ...".
[[nodiscard]] std::vector<std::string> righeOsservazioni(const Confronto& confronto);

}  // namespace korven::comparison
