#pragma once

#include "review/remark.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// Remarks in the order in which they stand: weight, sentence, the fields in question by the names
/// that programs know, the stable code.
[[nodiscard]] Prospetto prospettoOsservazioni(const review::Osservazioni& osservazioni);

}  // namespace korven::tables
