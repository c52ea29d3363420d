#include "batch/run/document_formats.hpp"

#include <cassert>

#include "base/files.hpp"
#include "device/document_files.hpp"
#include "device/graphics_session.hpp"
#include "document/markup_text.hpp"
#include "outdoc/document_renderer.hpp"

namespace korven::batch {

std::string scrivi(const document::Documento& documento, const FormatiDocumento& formati,
                   std::vector<std::string>& scritti, const base::Disco& disco) {
    assert(!formati.dipinti() || device::SessioneGrafica::aperta());
    std::string conservato;
    if (!formati.pdf.empty()) {
        device::scriviPdf(formati.pdf, documento, disco);
        scritti.push_back(formati.pdf);
    }
    if (!formati.documento.empty()) {
        conservato = outdoc::writeDocument(formati.documento,
                                           document::inMarkup(documento, document::Uso::documento),
                                           document::corpiTitoli, disco)
                         .kept;
        scritti.push_back(formati.documento);
    }
    if (!formati.testo.empty()) {
        base::scriviFile(formati.testo, document::testoSemplice(documento), disco);
        scritti.push_back(formati.testo);
    }
    return conservato;
}

}  // namespace korven::batch
