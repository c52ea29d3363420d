#include "batch/run/reviewed_run.hpp"

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/told_remarks.hpp"
#include "commands/project_opening.hpp"
#include "review/result_review.hpp"

namespace korven::batch {

void preparaProgetto(const Opzioni& opzioni, Esito& esito) {
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progettoLetto = true;
    esito.progetto = project::fileCorrente;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    project::faseGrafico = opzioni.fase;
}

review::Osservazioni aggiungiRisultati(const project::DatiProgetto& dati, Esito& esito) {
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    if (!nSeg || esito.causa == safety::Causa::rifiutato || Interruzioni::chiesta() != 0) return {};
    auto trovate = review::esaminaRisultati(dati, *nSeg);
    auto& tutte = esito.osservazioni;
    tutte.insert(tutte.end(), trovate.begin(), trovate.end());
    perPeso(tutte);
    return trovate;
}

int calcolaConRilievi(const Opzioni& opzioni, Esito& esito, const std::function<int()>& corsa) {
    preparaProgetto(opzioni, esito);
    if (!opzioni.uscita.empty()) base::creaCartella(opzioni.uscita);
    const Interruzioni interruzioni;
    esito.osservazioni = review::esaminaFile(opzioni.progetto, project::Progetto);
    esito.esaminato = true;
    raccontaPericoli(esito);
    project::DatiProgetto dati = project::Progetto;  // reading results back changes the method
    const int codice = corsa();
    if (codice != fatto) raccontaImpedimenti(esito);
    dati.rigidezzaEJ = project::Progetto.rigidezzaEJ;
    raccontaPericoli(esito, aggiungiRisultati(dati, esito));
    if (Interruzioni::chiesta() == 0) raccontaDaVedere(opzioni, esito);
    return conSeverita(opzioni, esito, codice);
}

}  // namespace korven::batch
