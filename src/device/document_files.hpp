#pragma once

#include <string>

#include "base/disk.hpp"
#include "document/blocks.hpp"
#include "document/page.hpp"

class QPageLayout;
class QPrinter;

namespace korven::device {

/// The sheet of a printer's page, with the margins of a document.
[[nodiscard]] document::Formato formatoPagina(const QPageLayout& pagina);

/// A document on pages, measured in the fonts that they are painted with. A QGuiApplication must
/// exist.
[[nodiscard]] document::Impaginato impaginato(document::Documento documento,
                                              const document::Formato& formato = {});

/// Writes the pages as a PDF file with bookmarks, all of it or nothing. The same document gives the
/// same bytes.
/// @throws base::ErroreFile with the system's reason
void scriviPdf(const std::string& percorso, const document::Impaginato& impaginato,
               const base::Disco& disco = base::discoDiSistema());

/// The same on upright A4 paper.
void scriviPdf(const std::string& percorso, document::Documento documento,
               const base::Disco& disco = base::discoDiSistema());

/// Prints the pages that the printer was asked for, or all. They are those of its own sheet
/// (`formatoPagina`).
/// @throws base::ErroreFile when the printer takes no page or has failed (print_outcome.hpp)
void stampa(const document::Impaginato& impaginato, QPrinter& stampante);

}  // namespace korven::device
