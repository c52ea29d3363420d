#include "batch/run/document_formats.hpp"

#include <cassert>

#include "base/files.hpp"
#include "device/document_files.hpp"
#include "device/graphics_session.hpp"
#include "document/markup_text.hpp"
#include "outdoc/document_renderer.hpp"

namespace korven::batch {

DocumentoScritto scrivi(const document::Documento& documento, const FormatiDocumento& formati,
                        const base::Disco& disco) {
    assert(!formati.dipinti() || device::SessioneGrafica::aperta());
    DocumentoScritto scritto;
    if (!formati.pdf.empty()) {
        device::scriviPdf(formati.pdf, documento, disco);
        scritto.file.push_back(formati.pdf);
    }
    if (!formati.documento.empty()) {
        scritto.conservato =
            outdoc::writeDocument(formati.documento,
                                  document::inMarkup(documento, document::Uso::documento), disco)
                .kept;
        scritto.file.push_back(formati.documento);
    }
    if (!formati.testo.empty()) {
        base::scriviFile(formati.testo, document::testoSemplice(documento), disco);
        scritto.file.push_back(formati.testo);
    }
    return scritto;
}

}  // namespace korven::batch
