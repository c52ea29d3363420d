#include <utility>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/watch/run_end.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/reviewed_run.hpp"
#include "batch/run/told_remarks.hpp"
#include "commands/report_files.hpp"
#include "project/project_data.hpp"
#include "review/remark_list.hpp"
#include "safety/run_cause.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::batch {

namespace {

// A run takes a stiffness that is left open from the section.
project::DatiProgetto conRigidezza(project::DatiProgetto dati) {
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    return dati;
}

int esegui(const Opzioni& opzioni, const PorteComando&, Esito& esito) {
    preparaProgetto(opzioni, esito);
    esito.osservazioni = review::esaminaFile(opzioni.progetto, project::Progetto);
    // Every command that calculates writes a result file; only some write more.
    const commands::UscitaRelazione soloRisultati(false);
    if (auto motivo =
            analysis::motivoUscite(project::fileCorrente, analysis::relazione, soloRisultati);
        !motivo.empty())
        esito.osservazioni.insert(esito.osservazioni.begin(),
                                  review::una("uscita-in-conflitto", motivo));
    analysis::FineCorsa fine{analysis::ModoFine::rifiutata};
    if (review::calcolabile(esito.osservazioni))
        if (auto motivo = review::provaCalcolo(project::Progetto, opzioni.maxIterazioni, &fine))
            esito.osservazioni.insert(esito.osservazioni.begin(), std::move(*motivo));
    const project::DatiProgetto dati = conRigidezza(project::Progetto);
    if (opzioni.calcola) aggiungiRisultati(dati, esito);
    annota(safety::causaCorsa(fine, dati), esito);
    return conSeverita(opzioni, esito, esito.calcolabile() ? fatto : nonEseguito);
}

}  // namespace

RigaComando comandoVerifica() {
    RigaComando riga = {nomeComandoVerifica,
                        "dice che cosa manca o è strano nel progetto, senza scrivere risultati",
                        insieme({opzioniModello(),
                                 {{nomeOpzioneCalcola, "elenca anche le osservazioni sui risultati",
                                   [](Opzioni& o) { o.calcola = true; }},
                                  opzioneSevero()}}),
                        esegui};
    riga.calcola = true;
    riga.soloRilievi = true;
    return riga;
}

}  // namespace korven::batch
