#pragma once

#include "document/strips.hpp"

// The list of contents: its rows are set with the document, the numbers of pages when all pages are
// known.

namespace korven::document {

/// The headings of levels 1 and 2 behind an `Indice`, in two columns; without the numbers of their
/// pages, which `numeraIndice` writes.
/// @param posto  of the `Indice` among the blocks of the document
void aggiungi(const Indice& indice, const Documento& documento, std::size_t posto,
              const Formato& formato, const MisuraCaratteri& misura, Strisce& strisce);

/// Writes at each row of a list of contents the page of its heading.
void numeraIndice(Impaginato& impaginato, const MisuraCaratteri& misura);

}  // namespace korven::document
