#pragma once

#include <string>
#include <vector>

#include "base/disk.hpp"
#include "document/blocks.hpp"

namespace korven::batch {

/// The files that a document is to be written into; an empty name: not wanted.
struct FormatiDocumento {
    std::string pdf, documento, testo;

    /// True if fonts and painting are needed (`AmbienteDisegno`).
    [[nodiscard]] bool dipinti() const { return !pdf.empty(); }
};

/// What became of a document.
struct DocumentoScritto {
    std::vector<std::string> file;
    std::string conservato;  ///< where an earlier word-processor file is now that was not made here
};

/// Writes a document as PDF, as word-processor file and as plain text.
/// @pre an `AmbienteDisegno` lives, a painting one for a PDF file: asserted
/// @throws base::ErroreFile with the system's reason; files before the one that failed are there
[[nodiscard]] DocumentoScritto scrivi(const document::Documento& documento,
                                      const FormatiDocumento& formati,
                                      const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::batch
