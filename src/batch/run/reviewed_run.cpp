#include "batch/run/reviewed_run.hpp"

#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/told_remarks.hpp"
#include "commands/project_opening.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

void preparaProgetto(const Opzioni& opzioni, Esito& esito) {
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progettoLetto = true;
    esito.progetto = project::fileCorrente;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    project::faseGrafico = opzioni.fase;
}

int calcolaConRilievi(const Opzioni& opzioni, Esito& esito, const std::function<int()>& corsa) {
    preparaProgetto(opzioni, esito);
    if (!opzioni.uscita.empty()) base::creaCartella(opzioni.uscita);
    const Interruzioni interruzioni;
    esito.osservazioni = review::esaminaFile(opzioni.progetto, project::Progetto);
    esito.esaminato = true;
    raccontaPericoli(esito.osservazioni);
    const int codice = corsa();
    if (codice != fatto) raccontaImpedimenti(esito);
    if (Interruzioni::chiesta() == 0) raccontaDaVedere(opzioni, esito);
    return conSeverita(opzioni, esito, codice);
}

}  // namespace korven::batch
