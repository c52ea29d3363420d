#pragma once

#include <cstddef>
#include <vector>

#include "tables/result_table.hpp"

namespace korven::report {

/// Which rows of a table of nodes stand in a document, in their order: at most `massime`, spread
/// over the wall as evenly as they go, the first, the last and those of the peaks among them. Where
/// these alone are more, they alone.
/// @param picchi  places of rows, in any order, more than once too
/// @param massime  from 2 on: asserted
[[nodiscard]] std::vector<std::size_t> righeScelte(std::size_t quante, int massime,
                                                   const std::vector<std::size_t>& picchi);

/// Keeps these rows; a note says which they are, where not all are kept.
void sfoltisci(tables::Prospetto& prospetto, int massime, const std::vector<std::size_t>& picchi);

}  // namespace korven::report
