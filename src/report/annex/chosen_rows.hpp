#pragma once

#include <cstddef>
#include <vector>

#include "tables/result_table.hpp"

namespace korven::report {

/// Which rows of a table of nodes stand in a document.
struct RigheScelte {
    int passo = 1;                   ///< one row in so many; 1: all
    std::vector<std::size_t> quali;  ///< in their order
};

/// One row in n, so that their depths lie at equal distances, with the last one and those of the
/// peaks: the smallest n that gives no more than `massime`, or the ends and the peaks alone.
/// @param picchi  places of rows, in any order, more than once too
/// @param massime  from 2 on: asserted
[[nodiscard]] RigheScelte righeScelte(std::size_t quante, int massime,
                                      const std::vector<std::size_t>& picchi);

/// Keeps these rows; a note says which they are, where not all are kept.
void sfoltisci(tables::Prospetto& prospetto, int massime, const std::vector<std::size_t>& picchi);

}  // namespace korven::report
