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

/// Writes a document as PDF, as word-processor file and as plain text.
/// @param scritti  gets the name of each file once it is there, also when a later one fails
/// @return where an earlier word-processor file is now that was not made here; empty: nowhere
/// @pre an `AmbienteDisegno` lives, a painting one for a PDF file: asserted
/// @throws base::ErroreFile with the system's reason
std::string scrivi(const document::Documento& documento, const FormatiDocumento& formati,
                   std::vector<std::string>& scritti,
                   const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::batch
