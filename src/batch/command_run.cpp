#include "batch/command_run.hpp"

#include <iostream>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "base/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/console.hpp"
#include "batch/failure.hpp"
#include "batch/interruption.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

int verifica(const std::string& progetto, Esito& esito) {
    esito.rilievi = commands::esaminaFile(progetto, project::Progetto);
    return commands::calcolabile(esito.rilievi) ? fatto : nonEseguito;
}

void racconta(const std::vector<std::string>& righe, Esito& esito) {
    for (const auto& riga : righe) {
        std::cerr << riga << '\n';
        esito.messaggi.push_back(riga);
    }
}

void raccontaArresto(const commands::ControlloCorsa& controllo, Esito& esito) {
    std::vector<std::string> righe = controllo.motivo();
    if (righe.empty() && Interruzioni::chiesta() != 0)
        righe.push_back(base::traduttore("Calcolo interrotto dall'utente."));
    racconta(righe, esito);
}

void avvisaPosto() {
    if (!commands::relazioneAltrove(project::fileCorrente)) return;
    const std::string risultati = base::nomeRisultati(project::fileCorrente);
    std::cerr << base::traduttore("Il nome della relazione termina al primo punto del percorso")
              << ": " << base::nomeRelazione(risultati) << '\n';
}

void annota(const commands::ControlloCorsa& controllo, const commands::UscitaRelazione& uscita,
            Esito& esito) {
    esito.giaAggiornato = !controllo.calcolato();
    esito.fasi = controllo.fasi();
    if (!esito.giaAggiornato)
        esito.fileScritti.push_back(base::nomeRisultati(project::fileCorrente));
    esito.fileRelazione = uscita.relazione();
    if (!esito.fileRelazione.empty()) esito.fileScritti.push_back(esito.fileRelazione);
}

int corri(const Opzioni& opzioni, Esito& esito) {
    AvanzamentoConsole vista(!opzioni.silenzioso);
    DialogoConsole dialogo(opzioni.ricalcolaEJ, vista);
    const Interruzioni interruzioni;
    commands::ControlloCorsa controllo(vista, opzioni.maxIterazioni, Interruzioni::chiesta());
    commands::UscitaRelazione uscita(opzioni.comando == Comando::relazione, opzioni.testo);
    analysis::CalcoloParatia(0, {dialogo, controllo, uscita});
    esito.messaggi = dialogo.messaggi();
    if (analysis::erroreCalcolo) {
        raccontaArresto(controllo, esito);
        return nonEseguito;
    }
    annota(controllo, uscita, esito);
    if (opzioni.testo && Interruzioni::chiesta() == 0) {
        esito.fileTesto = commands::scriviTesto(esito.fileRelazione);
        esito.fileScritti.push_back(esito.fileTesto);
    }
    if (Interruzioni::chiesta() != 0) {
        racconta(
            {base::traduttore(
                "Interruzione dell'utente a calcolo finito: i file già scritti sono completi.")},
            esito);
        return nonEseguito;
    }
    esito.calcolo = commands::leggiEsito();
    return fatto;
}

}  // namespace

int esegui(const Opzioni& opzioni, Esito& esito) {
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progettoLetto = true;
    esito.progetto = project::fileCorrente;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    if (opzioni.comando == Comando::verifica) return verifica(opzioni.progetto, esito);
    if (!opzioni.uscita.empty()) commands::creaCartella(opzioni.uscita);
    if (opzioni.comando == Comando::relazione) avvisaPosto();
    return corri(opzioni, esito);
}

}  // namespace korven::batch
