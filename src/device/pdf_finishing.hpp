#pragma once

#include <string>
#include <vector>

#include "document/page.hpp"

namespace korven::device {

/// What a PDF file tells of itself. Texts are UTF-8.
struct ProprietaPdf {
    std::string titolo, autore;
    std::string programma;
    std::string data;                              ///< "2026-11-22"; empty: the file has no date
    std::string lingua;                            ///< "it"; empty: none
    double altezza = 0;                            ///< of a page [pt]
    std::vector<document::Segnalibro> segnalibri;  ///< in the order of the document
};

/// A PDF file with its headings as bookmarks and its properties, and without what would differ from
/// one run to the next: the clock and random numbers.
/// @param pdf  bytes of a file as the painter wrote it
/// @throws std::exception if they are no PDF file
[[nodiscard]] std::string rifinito(const std::string& pdf, const ProprietaPdf& proprieta);

}  // namespace korven::device
