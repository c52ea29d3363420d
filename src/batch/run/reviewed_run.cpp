#include "batch/run/reviewed_run.hpp"

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "base/value_error.hpp"
#include "batch/run/console.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/told_remarks.hpp"
#include "commands/project_opening.hpp"
#include "commands/report_files.hpp"
#include "project/project_data.hpp"
#include "review/result_review.hpp"
#include "safety/short_margin.hpp"

namespace korven::batch {

namespace {

// What looks like a slip is told before the command computes with it; after it what else prevents
// a run that was refused, and what is odd about its results.
int traLeOsservazioni(const Opzioni& opzioni, Esito& esito, const std::function<int()>& corsa) {
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

}  // namespace

void preparaProgetto(const Opzioni& opzioni, Esito& esito) {
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progettoLetto = true;
    esito.progetto = project::fileCorrente;
    esito.scritti = project::Progetto;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    project::faseGrafico = opzioni.fase;
}

review::Osservazioni aggiungiRisultati(const project::DatiProgetto& dati, Esito& esito) {
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    if (!nSeg || esito.causa == safety::Causa::rifiutato || Interruzioni::chiesta() != 0) return {};
    std::optional<safety::MargineBreve> breve;
    if (!esito.margine) breve = safety::margineBreve(dati, *nSeg);
    if (!esito.margine && !breve) return {};
    const safety::Margine& margine = breve ? breve->margine : *esito.margine;
    esito.giudizi = safety::giudizi(margine);
    auto trovate = review::esaminaRisultati(breve ? breve->dati : dati, margine);
    auto& tutte = esito.osservazioni;
    tutte.insert(tutte.end(), trovate.begin(), trovate.end());
    perPeso(tutte);
    return trovate;
}

int calcolaConRilievi(const Opzioni& opzioni, Esito& esito, const std::function<int()>& corsa) {
    preparaProgetto(opzioni, esito);
    if (!opzioni.uscita.empty()) base::creaCartella(opzioni.uscita);
    return traLeOsservazioni(opzioni, esito, corsa);
}

int calcolaInMemoria(const Opzioni& opzioni, Esito& esito,
                     const std::function<int(const analysis::Avvio&, base::Dialogo&)>& calcolo) {
    preparaProgetto(opzioni, esito);
    return traLeOsservazioni(opzioni, esito, [&]() -> int {
        if (!review::mostrabile(project::Progetto)) throw base::ErroreValore();
        AvanzamentoConsole senza(false);
        DialogoConsole dialogo(opzioni.ricalcolaEJ, senza);
        const commands::UscitaRelazione uscita(true);
        const auto avvio = analysis::avviaCalcolo(analysis::relazione, uscita, dialogo);
        if (!avvio) annota({safety::Causa::rifiutato, {}}, esito);
        const int codice = avvio ? calcolo(*avvio, dialogo) : nonEseguito;
        const auto& detti = dialogo.messaggi();
        esito.messaggi.insert(esito.messaggi.begin(), detti.begin(), detti.end());
        return codice;
    });
}

}  // namespace korven::batch
