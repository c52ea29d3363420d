#pragma once

#include <string>
#include <vector>

#include "document/strips.hpp"

namespace korven::document {

/// The notes of a table, and why some of its cells have nothing to show, unless the reasons are
/// many.
[[nodiscard]] std::vector<std::string> note(const tables::Prospetto& prospetto);

/// A table as strips: title, head, rows, notes. The head stands again on each page that the table
/// goes on to; no fewer than three rows stand on a page of it, and one of few rows is whole. A row
/// higher than a page is parted between its lines.
void aggiungi(const Tavola& tavola, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce);

}  // namespace korven::document
