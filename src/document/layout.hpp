#pragma once

#include "document/page.hpp"

namespace korven::document {

/// Sets a document on pages: text wrapped, numbers in line at their points, a table's head repeated
/// where it goes on, no heading at the foot of a page, no line of a paragraph alone. Each page has
/// the head of the document above it, and below it its foot and the number of the page, "3 / 14".
/// The same document on the same sheet gives the same pages. At least one page.
[[nodiscard]] Impaginato impagina(Documento documento, const Formato& formato,
                                  const MisuraCaratteri& misura);

}  // namespace korven::document
