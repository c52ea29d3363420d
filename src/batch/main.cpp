#include <csignal>
#include <exception>
#include <iostream>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "base/program_folder.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "batch/console.hpp"
#include "batch/options.hpp"
#include "batch/outcome.hpp"
#include "project/project_data.hpp"

// korven32c: the work of the desktop program without a window.

namespace korven::batch {
namespace {

enum CodiceUscita { fatto = 0, nonEseguito = 1, usoErrato = 2, ingressoRotto = 3 };

volatile std::sig_atomic_t interruzione = 0;

extern "C" void interrompi(int) { interruzione = 1; }

// Italian is the language of the keys and needs no tables.
void scegliLingua(const std::string& sigla) {
    int codice = sigla.empty() ? 1 : base::codiceLingua(sigla);
    const std::string scelta = base::fileProgramma("language.cfg");
    if (sigla.empty() && base::esisteFile(scelta)) codice = base::leggiLingua(scelta);
    if (codice == 1) return;
    if (base::siglaLingua(codice).empty()) {
        if (sigla.empty()) throw base::ErroreFile(scelta, 1, "atteso un codice di lingua da 1 a 6");
        return;  // a wrong option is answered with the others
    }
    base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"));
    base::impostaLingua(codice);
}

int verifica(const std::string& progetto, Esito& esito) {
    esito.rilievi = commands::esaminaFile(progetto, project::Progetto);
    return commands::calcolabile(esito.rilievi) ? fatto : nonEseguito;
}

void raccontaArresto(const commands::ControlloCorsa& controllo, Esito& esito) {
    std::vector<std::string> righe = controllo.motivo();
    if (righe.empty() && interruzione != 0)
        righe.push_back(base::traduttore("Calcolo interrotto dall'utente."));
    for (const auto& riga : righe) {
        std::cerr << riga << '\n';
        esito.messaggi.push_back(riga);
    }
}

int corri(const Opzioni& opzioni, Esito& esito) {
    DialogoConsole dialogo(opzioni.ricalcolaEJ);
    AvanzamentoConsole vista(!opzioni.silenzioso);
    commands::ControlloCorsa controllo(vista, opzioni.maxIterazioni, interruzione);
    commands::UscitaRelazione uscita(opzioni.comando == Comando::relazione);
    analysis::CalcoloParatia(0, {dialogo, controllo, uscita});
    esito.messaggi = dialogo.messaggi();
    if (analysis::erroreCalcolo) {
        raccontaArresto(controllo, esito);
        return nonEseguito;
    }
    esito.calcolo = commands::leggiEsito();
    esito.giaAggiornato = !controllo.calcolato();
    esito.fasi = controllo.fasi();
    if (!esito.giaAggiornato) esito.fileScritti.push_back(esito.calcolo->fileRisultati);
    esito.fileRelazione = uscita.relazione();
    if (!esito.fileRelazione.empty()) esito.fileScritti.push_back(esito.fileRelazione);
    if (opzioni.testo) {
        esito.fileTesto = commands::scriviTesto(esito.fileRelazione);
        esito.fileScritti.push_back(esito.fileTesto);
    }
    return fatto;
}

int esegui(const Opzioni& opzioni, Esito& esito) {
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progetto = project::fileCorrente;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    return opzioni.comando == Comando::verifica ? verifica(opzioni.progetto, esito)
                                                : corri(opzioni, esito);
}

void racconta(const Opzioni& opzioni, const Esito& esito) {
    if (opzioni.json) {
        std::cout << json(esito);
        return;
    }
    if (opzioni.comando == Comando::verifica && esito.codice <= nonEseguito) {
        if (!opzioni.silenzioso) std::cout << elenco(esito);
        return;
    }
    if (esito.codice != fatto || opzioni.silenzioso) return;
    std::cout << tabella(esito, opzioni.traccia);
    for (const auto& file : esito.fileScritti)
        std::cout << base::traduttore("File scritto") << ": " << file << '\n';
}

void fallisci(int codice, const std::string& perche, Esito& esito) {
    std::cerr << "korven32c: " << perche << '\n';
    esito.messaggi.push_back(perche);
    esito.codice = codice;
}

constexpr const char* nomiComandi[] = {"calcola", "relazione", "verifica"};

int programma(int argc, const char* const* argv) {
    base::impostaCartellaProgramma(valoreAnticipato(argc, argv, "--cartella"));
    scegliLingua(valoreAnticipato(argc, argv, "--lingua"));
    const auto [opzioni, codice] = leggiOpzioni(argc, argv);
    if (!opzioni) return codice;

    std::signal(SIGINT, interrompi);
    std::signal(SIGTERM, interrompi);
    std::signal(SIGXFSZ, SIG_IGN);  // a file at its size limit is a failed write like others
    Esito esito;
    esito.comando = nomiComandi[static_cast<int>(opzioni->comando)];
    esito.progetto = opzioni->progetto;
    try {
        esito.codice = esegui(*opzioni, esito);
    } catch (const base::ErroreIndice& errore) {  // the project asks for more than a table holds
        fallisci(ingressoRotto, esito.progetto + ": " + errore.what(), esito);
    } catch (const base::ErroreValore& errore) {  // like a result that is not finite
        fallisci(nonEseguito, esito.progetto + ": " + errore.what(), esito);
    } catch (const std::exception& errore) {  // broken input, full disk
        fallisci(ingressoRotto, errore.what(), esito);
    }
    racconta(*opzioni, esito);
    return esito.codice;
}

}  // namespace
}  // namespace korven::batch

int main(int argc, char** argv) {
    try {
        return korven::batch::programma(argc, argv);
    } catch (const std::exception& errore) {
        std::cerr << "korven32c: " << errore.what() << '\n';
        return korven::batch::ingressoRotto;
    }
}
