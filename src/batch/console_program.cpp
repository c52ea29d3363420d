#include "batch/console_program.hpp"

#include <csignal>
#include <exception>
#include <iostream>

#include "analysis/result_guard.hpp"
#include "base/colon.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"
#include "base/process/closed_pipe.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/command_line.hpp"
#include "batch/options/common_options.hpp"
#include "batch/options/language_in_use.hpp"
#include "batch/run/combinations_outcome.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/comparison_outcome.hpp"
#include "batch/run/equilibrium_outcome.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/field_text.hpp"
#include "batch/run/margin_outcome.hpp"
#include "batch/run/question_outcome.hpp"
#include "batch/run/selfcheck_outcome.hpp"
#include "factors/words.hpp"

namespace korven::batch {

namespace {

// However silent it is, what a question was asked for.
std::string soloRisposta(const Esito& esito) {
    if (esito.lunghezza) return risposta(*esito.lunghezza);
    return esito.bloccaggio ? risposta(*esito.bloccaggio) : std::string();
}

// The option by which the outputs of a command go elsewhere than beside the project, with what the
// help says of it.
std::string altrove(const Opzioni& opzioni) {
    if (!opzioni.uscita.empty()) return {};
    for (const auto& riga : opzioni.comando->opzioni)
        if ((riga.nome.italiano == "--uscita" && riga.valore.inglese == "DIR") ||
            riga.nome.italiano == "--xlsx")
            return std::string(riga.nome.mostrato()) + " " + riga.valoreMostrato() +
                   base::duePunti() + base::traduttore(riga.spiegazione);
    return {};
}

// What a command has to tell on standard output.
std::string resoconto(const Opzioni& opzioni, const Esito& esito) {
    if (esito.righeVersate && (opzioni.json || opzioni.serie.uscita.empty())) return {};
    if (opzioni.json) return json(esito);
    if (opzioni.silenzioso) return soloRisposta(esito);
    if (esito.soloRilievi) return esito.guasto ? "" : elenco(esito);
    if (!esito.compiuto() && !esito.equilibrio && !esito.margine && !esito.autoverifica &&
        !esito.confronto && !esito.combinazioni && !esito.lunghezza && !esito.bloccaggio)
        return {};
    std::string testo = esito.calcolo ? tabella(esito, opzioni.traccia) : "";
    if (esito.equilibrio) testo += testoEquilibrio(*esito.equilibrio);
    if (esito.margine) testo += testoMargine(*esito.margine, project::Progetto);
    if (esito.sullaNorma) testo += factors::esiti(*esito.sullaNorma) + '\n';
    if (esito.combinazioni) testo += testoCombinazioni(*esito.combinazioni, project::Progetto);
    if (esito.confronto) testo += testoConfronto(*esito.confronto);
    if (esito.lunghezza) testo += testoLunghezza(*esito.lunghezza);
    if (esito.bloccaggio) testo += testoBloccaggio(*esito.bloccaggio);
    if (esito.elencaCampi) testo += testoCampi(esito.scritti);
    if (esito.impostato) testo += testoDiversi(esito.scritti, *esito.impostato);
    if (esito.autoverifica) testo += testoAutoverifica(esito.autoverifica->esito);
    for (const auto& file : esito.fileScritti)
        testo += base::traduttore("File scritto") + base::duePunti() + file + '\n';
    return testo;
}

std::string resocontoAncheDiUnGuasto(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia,
                                     Esito& esito) {
    try {
        return resoconto(opzioni, esito);
    } catch (const std::exception&) {
        raccontaGuasto(guardia, esito);
    }
    return resoconto(opzioni, esito);  // of the failure: without the numbers that could not be told
}

// Standard output may be a full disk; nobody must take half a table for the whole.
int versa(const std::string& testo, int codice) {
    std::cout << testo << std::flush;
    if (std::cout) return codice;
    std::cerr << "korven32c: " << base::traduttore("impossibile scrivere sull'uscita normale")
              << '\n';
    return ingressoRotto;
}

void lavora(const Opzioni& opzioni, const std::exception_ptr& senzaLingua,
            const PorteComando& porte, Esito& esito) {
    try {
        if (senzaLingua) std::rethrow_exception(senzaLingua);
        esito.codice = opzioni.comando->esegui(opzioni, porte, esito);
    } catch (const std::exception&) {
        raccontaGuasto(porte.guardia, esito);
    }
    if (!esito.corsa || esito.compiuto()) return;
    avvisaRelazioniRimaste(esito);
    if (opzioni.comando->rimasti != nullptr)
        avvisaRimasti(opzioni.comando->rimasti(opzioni), esito);
}

}  // namespace

int programma(int argc, const char* const* argv, const base::Disco& disco) {
    base::occupaCanaliChiusi();
    base::resistiAiTubiChiusi();
    std::signal(SIGXFSZ, SIG_IGN);  // a file at its size limit is a failed write like others
    base::impostaCartellaProgramma(valoreAnticipato(argc, argv, nomeOpzioneCartella));
    // Wrong usage goes before a language that can't be had, which JSON must be able to tell.
    std::exception_ptr senzaLingua;
    try {
        base::seguiCartellaUtente();
        scegliLingua(valoreAnticipato(argc, argv, nomeOpzioneLingua));
    } catch (const std::exception&) {
        senzaLingua = std::current_exception();
    }
    const auto [opzioni, codice] = leggiOpzioni(argc, argv, comandi());
    if (!opzioni) return versa({}, codice);

    Esito esito;
    esito.comando = opzioni->comando->nome.italiano;
    esito.calcola = opzioni->comando->calcola;
    esito.soloRilievi = opzioni->comando->soloRilievi;
    esito.progetto = opzioni->progetto;
    esito.altrove = altrove(*opzioni);
    analysis::GuardiaRisultati guardia;
    lavora(*opzioni, senzaLingua, {guardia, disco}, esito);
    const std::string testo = resocontoAncheDiUnGuasto(*opzioni, guardia, esito);
    return versa(testo, esito.codice);
}

}  // namespace korven::batch
