#pragma once

#include "tables/result_table.hpp"

namespace korven::workbook {

/// A table whose depths say "6.12 below" as one of numbers alone: the words go into a column of
/// their own behind the depths, so that programs can read both. One without such words stays as it
/// is.
[[nodiscard]] tables::Prospetto conLati(tables::Prospetto prospetto);

}  // namespace korven::workbook
