#pragma once

#include <string>
#include <vector>

#include "document/page.hpp"

namespace korven::device {

/// A part of a page that leads to another place of the document.
struct Collegamento {
    std::size_t pagina = 0;  ///< from 0
    double x = 0, y = 0, larghezza = 0, altezza = 0;
    document::Segnalibro meta;
};

/// What a PDF file tells of itself. Texts are UTF-8.
struct ProprietaPdf {
    std::string titolo, autore;
    std::string programma;
    std::string data;                              ///< "2026-11-22"; empty: the file has no date
    std::string lingua;                            ///< "it"; empty: none
    double altezza = 0;                            ///< of a page [pt]
    std::vector<document::Segnalibro> segnalibri;  ///< in the order of the document
    std::vector<Collegamento> collegamenti;
    std::vector<document::FileAllegato> allegati;
};

/// A PDF file with its headings as bookmarks, its links, the files that it carries and its
/// properties, and without what would differ from one run to the next: the clock and random
/// numbers.
/// @param pdf  bytes of a file as the painter wrote it
/// @throws std::exception if they are no PDF file
[[nodiscard]] std::string rifinito(const std::string& pdf, const ProprietaPdf& proprieta);

}  // namespace korven::device
