#pragma once

#include "report/annex/chapters.hpp"
#include "safety/margin.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

/// The largest numbers with three meshes, so that error and order can be followed; notes by name
/// say which have no order.
[[nodiscard]] tables::Prospetto prospettoErroreMaglia(const safety::Margine& margine);

/// The uses of the section with the same meshes; without rows where there are none.
[[nodiscard]] tables::Prospetto prospettoUsiMaglia(const safety::Margine& margine);

/// Where a dash stands in the first table, and of which errors the document warns.
[[nodiscard]] std::string soglieErroreMaglia();
/// What the trend of the second is, and of which uses the document warns.
[[nodiscard]] std::string soglieUsiMaglia();

/// What a finer mesh changes in the verdicts, as paragraphs.
void avvisaMaglia(const safety::Margine& margine, Blocchi& blocchi);

}  // namespace korven::report
