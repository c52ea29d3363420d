#include "batch/run/console_run.hpp"

#include <algorithm>
#include <iostream>

#include "analysis/run_flags.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/failure.hpp"
#include "project/project_data.hpp"
#include "results/run_outcome.hpp"

namespace korven::batch {

namespace {

void raccontaArresto(const analysis::ControlloCorsa& controllo, Esito& esito) {
    std::vector<std::string> righe = controllo.motivo();
    if (righe.empty() && Interruzioni::chiesta() != 0)
        righe.push_back(base::traduttore("Calcolo interrotto dall'utente."));
    racconta(righe, esito);
}

// A run that no stage has ended was refused before the first, or its user would not wait for
// another.
analysis::FineCorsa comeFinita(const analysis::ControlloCorsa& controllo) {
    if (!analysis::erroreCalcolo || controllo.comeFinita().modo != analysis::ModoFine::compiuta)
        return controllo.comeFinita();
    return {Interruzioni::chiesta() != 0 ? analysis::ModoFine::fermata
                                         : analysis::ModoFine::rifiutata};
}

}  // namespace

void annota(const safety::CausaCorsa& causa, Esito& esito) {
    esito.causa = causa.causa;
    esito.spiegazione = causa.frase;
    const bool inElenco =  // which the remarks that are listed say already
        esito.soloRilievi &&
        std::any_of(esito.osservazioni.begin(), esito.osservazioni.end(),
                    [&causa](const auto& o) { return o.testo == causa.frase; });
    if (!causa.frase.empty() && !inElenco) std::cerr << causa.frase << '\n';
}

void racconta(const std::vector<std::string>& righe, Esito& esito) {
    for (const auto& riga : righe) {
        std::cerr << riga << '\n';
        esito.messaggi.push_back(riga);
    }
}

void annotaRisultati(Esito& esito) {
    if (!esito.giaAggiornato)
        esito.fileScritti.push_back(base::nomeRisultati(project::fileCorrente));
}

CorsaConsole::CorsaConsole(const Opzioni& opzioni, const PorteComando& porte, Esito& esito)
    : opzioni_(opzioni),
      porte_(porte),
      esito_(esito),
      vista_(!opzioni.silenzioso),
      dialogo_(opzioni.ricalcolaEJ, vista_) {
    esito_.corsa = true;
}

bool CorsaConsole::esegui(analysis::ModoUscita modoUscita, analysis::UscitaCalcolo& uscita) {
    // A reading of the results turns every other method into Coulomb's.
    if (opzioni_.metodoSpinte) project::Progetto.metodoSpinte = *opzioni_.metodoSpinte;
    analysis::ControlloCorsa controllo(vista_, opzioni_.maxIterazioni, Interruzioni::chiesta());
    analysis::CalcoloParatia(modoUscita,
                             {dialogo_, controllo, uscita, &porte_.guardia, porte_.disco});
    esito_.messaggi = dialogo_.messaggi();
    if (analysis::erroreCalcolo) raccontaArresto(controllo, esito_);
    annota(safety::causaCorsa(comeFinita(controllo), project::Progetto), esito_);
    if (analysis::erroreCalcolo) return false;
    esito_.giaAggiornato = !controllo.calcolato();
    if (controllo.calcolato()) esito_.fasi = controllo.fasi();
    return true;
}

int CorsaConsole::concludi() {
    if (interrotta()) return nonEseguito;
    esito_.calcolo = results::leggiEsito();
    return fatto;
}

bool CorsaConsole::interrotta() {
    if (Interruzioni::chiesta() == 0) return false;
    esito_.causa = safety::Causa::fermato;
    racconta({base::traduttore(
                 "Interruzione dell'utente a calcolo finito: i file già scritti sono completi.")},
             esito_);
    return true;
}

}  // namespace korven::batch
