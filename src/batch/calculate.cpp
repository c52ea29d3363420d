#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/reviewed_run.hpp"
#include "commands/report_files.hpp"

namespace korven::batch {

namespace {

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return calcolaConRilievi(opzioni, esito, [&]() -> int {
        CorsaConsole corsa(opzioni, porte, esito);
        commands::UscitaRelazione soloRisultati(false);
        if (!corsa.esegui(analysis::relazione, soloRisultati)) return nonEseguito;
        annotaRisultati(esito);
        return corsa.concludi();
    });
}

}  // namespace

RigaComando comandoCalcola() {
    RigaComando riga = {{"calcola", "calculate"},
                        "esegue il calcolo per fasi e mostra una riga per fase",
                        insieme({opzioniCalcolo(),
                                 {{{"--traccia", "--trace"},
                                   "mostra i cambi di stato delle fasi con più di 20 iterazioni",
                                   [](Opzioni& o) { o.traccia = true; }}}}),
                        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
