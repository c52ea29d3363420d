#pragma once

#include <cstddef>
#include <set>

#include "tables/result_table.hpp"

namespace korven::workbook {

/// A table whose depths say "6.12 below" as one of numbers alone: the words go into a column of
/// their own behind the depths, so that programs can read both. The same columns in all projects.
/// @param quali  numbers of the columns of depths that may have such words, the first 0
[[nodiscard]] tables::Prospetto conLati(tables::Prospetto prospetto,
                                        const std::set<std::size_t>& quali);

}  // namespace korven::workbook
