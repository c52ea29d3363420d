#pragma once

#include <string>

#include "document/strips.hpp"

// Headings, paragraphs and drawings as strips.

namespace korven::document {

/// Room for the base line and between lines of a text.
[[nodiscard]] double interlinea(const Carattere& carattere);

/// One line of a text as a part of a strip.
/// @param y  upper end of the line
[[nodiscard]] Scritta scritta(std::string testo, double x, double y, const Carattere& carattere,
                              const MisuraCaratteri& misura, Tinta tinta = Tinta::testo);

void aggiungi(const Titolo& titolo, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce);
/// Its first two lines stay together, and so do its last two.
void aggiungi(const Paragrafo& paragrafo, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce);
/// A drawing larger than the text of a page is made smaller.
void aggiungi(const Figura& figura, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce);

}  // namespace korven::document
