#include <iostream>

#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/report_formats.hpp"
#include "batch/run/reviewed_run.hpp"

namespace korven::batch {

namespace {

using base::uguali;

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return calcolaConRilievi(opzioni, esito, [&]() -> int {
        avvisaPosto();
        const AmbienteDisegno ambiente(opzioni.relazione.dipinte());
        controllaUscite(opzioni.relazione);
        CorsaConsole corsa(opzioni, porte, esito);
        if (!produciRelazione(opzioni.relazione, corsa, esito)) return nonEseguito;
        return corsa.concludi();
    });
}

std::vector<RigaOpzione> formati() {
    return {
        {uguali("--txt"), "scrive anche il testo semplice",
         [](Opzioni& o) { o.relazione.testo = true; }},
        {uguali("--doc"), "scrive anche il documento per elaboratori di testi (DOC)",
         [](Opzioni& o) { o.relazione.documento = true; }},
        {uguali("--pdf"), "scrive la relazione in formato PDF",
         [](Opzioni& o, const std::string& file) {
             o.relazione.pdf = file;
             return percorsoAmmesso(file);
         },
         uguali("FILE")},
        {{"--stampa", "--print"},
         "stampa la relazione su questa stampante",
         [](Opzioni& o, const std::string& stampante) {
             o.relazione.stampante = stampante;
             return percorsoAmmesso(stampante);
         },
         {"NOME", "NAME"}},
    };
}

}  // namespace

RigaComando comandoRelazione() {
    RigaComando riga = {{"relazione", "report"},
                        "esegue il calcolo e scrive la relazione (TAB)",
                        insieme({opzioniCalcolo(), formati()}),
                        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
