#include "batch/run/annex_output.hpp"

#include <iostream>
#include <string>
#include <utility>

#include "base/colon.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/document_formats.hpp"
#include "batch/run/output_names.hpp"
#include "report/annex/annex.hpp"

namespace korven::batch {

FormatiAllegato allegatoAccanto(FormatiAllegato chiesti) {
    chiesti.pdf = nomeProprio(base::parolaAllegato, "pdf");
    chiesti.documento = nomeProprio(base::parolaAllegato, "doc");
    chiesti.testo = nomeProprio(base::parolaAllegato, "txt");
    return chiesti;
}

ComandoDocumento comandoAllegato(const Opzioni& opzioni, const FormatiAllegato& formati,
                                 const std::optional<factors::NormaChiesta>& norma) {
    return [&opzioni, formati, norma](int nSeg, const std::string& data) {
        dossier::ComandoAllegato comando{.progetto = opzioni.progetto,
                                         .pdf = formati.pdf,
                                         .documento = formati.documento,
                                         .testo = formati.testo,
                                         .alPosto = alPostoDelProgetto(opzioni),
                                         .norma = norma,
                                         .data = data};
        comando.alPosto.nSeg = std::to_string(nSeg);
        if (formati.righe != FormatiAllegato().righe) comando.righe = formati.righe;
        return dossier::comando(comando);
    };
}

void scriviAllegato(dossier::Fascicolo fascicolo, const FormatiAllegato& formati,
                    const base::Disco& disco, Esito& esito) {
    const std::string conservato =
        scrivi(report::allegato(std::move(fascicolo), {.righe = formati.righe}),
               {.pdf = formati.pdf, .documento = formati.documento, .testo = formati.testo},
               esito.fileScritti, disco);
    if (!conservato.empty())
        std::cerr << base::traduttore("Il documento che c'era è conservato in") << base::duePunti()
                  << conservato << '\n';
}

}  // namespace korven::batch
