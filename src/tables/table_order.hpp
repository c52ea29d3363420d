#pragma once

#include <cstddef>
#include <vector>

#include "tables/result_table.hpp"

namespace korven::tables {

/// The rows of a table in the order of a column: by the numbers of its cells or those by which
/// its words are sorted, by letters where both have none. What has no number comes last both ways;
/// equal ones stay in the order of the table.
/// @param colonna  one of the table's: asserted
/// @return the places of the rows in the table
[[nodiscard]] std::vector<std::size_t> ordine(const Prospetto& prospetto, std::size_t colonna,
                                              bool crescente);

}  // namespace korven::tables
