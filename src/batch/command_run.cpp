#include "batch/command_run.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/segment_count.hpp"
#include "base/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/drawing_run.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_forms.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/report_forms.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

int verifica(const Opzioni& opzioni, Esito& esito) {
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

void avvisaPosto() {
    if (!commands::relazioneAltrove(project::fileCorrente)) return;
    const std::string risultati = base::nomeRisultati(project::fileCorrente);
    std::cerr << base::traduttore("Il nome della relazione termina al primo punto del percorso")
              << ": " << base::nomeRelazione(risultati) << '\n';
}

// What a run leaves, unless it was interrupted after its calculation.
int concludi(CorsaConsole& corsa, Esito& esito) {
    if (corsa.interrotta()) return nonEseguito;
    esito.calcolo = commands::leggiEsito();
    return fatto;
}

int calcola(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    CorsaConsole corsa(opzioni, guardia, esito);
    commands::UscitaRelazione soloRisultati(false);
    if (!corsa.esegui(analysis::relazione, soloRisultati)) return nonEseguito;
    annotaRisultati(esito);
    return concludi(corsa, esito);
}

int relazione(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    const AmbienteDisegno ambiente(opzioni.relazione.dipinte());
    controllaUscite(opzioni.relazione);
    CorsaConsole corsa(opzioni, guardia, esito);
    if (!scriviRelazione(opzioni.relazione, corsa, esito)) return nonEseguito;
    return concludi(corsa, esito);
}

int eseguiComando(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    switch (opzioni.comando) {
        case Comando::verifica:
            return verifica(opzioni, esito);
        case Comando::relazione:
            avvisaPosto();
            return relazione(opzioni, guardia, esito);
        case Comando::calcola:
            return calcola(opzioni, guardia, esito);
        case Comando::tutto:
            avvisaPosto();
            return tutto(opzioni, guardia, esito);
        default:
            return disegna(opzioni, guardia, esito);
    }
}

bool calcolaAnche(Comando comando) {
    return comando == Comando::calcola || comando == Comando::relazione ||
           comando == Comando::diagramma || comando == Comando::tutto;
}

// A run tells the first reason of its refusal itself.
bool giaDetto(const std::string& testo, const Esito& esito) {
    return std::any_of(esito.messaggi.begin(), esito.messaggi.end(), [&testo](const auto& detto) {
        return detto.find(testo) != std::string::npos;
    });
}

// What looks like a slip is told before the program computes with it; after a run that was refused,
// what else prevents it.
int calcolaConRilievi(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    const Interruzioni interruzioni;
    esito.rilievi = review::esaminaFile(opzioni.progetto, project::Progetto);
    esito.esaminato = true;
    for (const auto& rilievo : esito.rilievi)
        if (!rilievo.impedisce) std::cerr << riga(rilievo) << '\n';
    const int codice = eseguiComando(opzioni, guardia, esito);
    for (const auto& rilievo : esito.rilievi)
        if (rilievo.impedisce && codice != fatto && !giaDetto(rilievo.testo, esito))
            std::cerr << riga(rilievo) << '\n';
    return codice;
}

}  // namespace

int esegui(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    if (opzioni.comando == Comando::campiture) return disegna(opzioni, guardia, esito);
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progettoLetto = true;
    esito.progetto = project::fileCorrente;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    project::faseGrafico = opzioni.fase;
    if (!opzioni.uscita.empty() && opzioni.comando != Comando::verifica)
        commands::creaCartella(opzioni.uscita);
    return calcolaAnche(opzioni.comando) ? calcolaConRilievi(opzioni, guardia, esito)
                                         : eseguiComando(opzioni, guardia, esito);
}

}  // namespace korven::batch
