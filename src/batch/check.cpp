#include <utility>

#include "analysis/calcolo_paratia.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/reviewed_run.hpp"
#include "commands/report_files.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

int esegui(const Opzioni& opzioni, const PorteComando&, Esito& esito) {
    preparaProgetto(opzioni, esito);
    esito.rilievi = review::esaminaFile(opzioni.progetto, project::Progetto);
    // Every command that calculates writes a result file; only some write more.
    const commands::UscitaRelazione soloRisultati(false);
    if (auto motivo =
            analysis::motivoUscite(project::fileCorrente, analysis::relazione, soloRisultati);
        !motivo.empty())
        esito.rilievi.insert(esito.rilievi.begin(), {true, std::move(motivo)});
    if (review::calcolabile(esito.rilievi))
        if (auto motivo = review::provaCalcolo(project::Progetto, opzioni.maxIterazioni))
            esito.rilievi.insert(esito.rilievi.begin(), std::move(*motivo));
    return review::calcolabile(esito.rilievi) ? fatto : nonEseguito;
}

}  // namespace

RigaComando comandoVerifica() {
    RigaComando riga = {{"verifica", "check"},
                        "dice che cosa manca o è strano nel progetto, senza scrivere risultati",
                        opzioniModello(),
                        esegui};
    riga.soloRilievi = true;
    return riga;
}

}  // namespace korven::batch
