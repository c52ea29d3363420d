#pragma once

#include "document/strips.hpp"

namespace korven::document {

/// A table as strips: title, head, rows, notes. The head stands again on each page that the table
/// goes on to; neither the first row nor the last stands alone on a page. A row higher than a page
/// is parted between its lines. Why cells have nothing to show is told in the notes.
void aggiungi(const Tavola& tavola, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce);

}  // namespace korven::document
