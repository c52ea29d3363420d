#include "batch/run/told_remarks.hpp"

#include <algorithm>
#include <iostream>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/shell_word.hpp"
#include "base/translated_texts.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "dossier/annex_command.hpp"
#include "review/remark_counts.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using review::Peso;

// A run tells the first reason of its refusal itself, and why it found no rest.
bool giaDetto(const std::string& testo, const Esito& esito) {
    return esito.spiegazione.find(testo) != std::string::npos ||
           std::any_of(esito.messaggi.begin(), esito.messaggi.end(), [&testo](const auto& detto) {
               return detto.find(testo) != std::string::npos;
           });
}

}  // namespace

void raccontaPericoli(const Esito& esito, const review::Osservazioni& osservazioni) {
    for (const auto& osservazione : osservazioni)
        if (osservazione.peso == Peso::pericolo && !giaDetto(osservazione.testo, esito))
            std::cerr << riga(osservazione) << '\n';
}

void raccontaImpedimenti(const Esito& esito) {
    for (const auto& osservazione : esito.osservazioni)
        if (osservazione.impedisce() && !giaDetto(osservazione.testo, esito))
            std::cerr << riga(osservazione) << '\n';
}

std::string comandoElenco(const Opzioni& opzioni) {
    // What is copied from the line and pasted behind a prompt must name the same project.
    std::string testo =
        "korven32c " + nomeComandoVerifica.mostrato() + ' ' + nomeOpzioneCalcola.mostrato();
    for (const auto& opzione : dossier::opzioni(
             {.metodoSpinte = opzioni.metodoSpinte, .ricalcolaEJ = false, .nSeg = opzioni.nseg}))
        testo += ' ' + opzione;
    return testo + ' ' + base::perLaShell(opzioni.progetto);
}

void raccontaDaVedere(const Opzioni& opzioni, const Esito& esito) {
    const int numero = quante(esito.osservazioni, Peso::daVedere);
    if (numero == 0 || opzioni.silenzioso) return;
    const auto chiave = numero == 1 ? "%1 osservazione da vedere" : "%1 osservazioni da vedere";
    std::cerr << base::riempito(traduttore(chiave), std::vector{std::to_string(numero)})
              << base::duePunti() << comandoElenco(opzioni) << '\n';
}

int conSeverita(const Opzioni& opzioni, Esito& esito, int codice) {
    const int pericoli = quante(esito.osservazioni, Peso::pericolo);
    if (!opzioni.severo || codice != fatto || pericoli == 0) return codice;
    esito.severo = true;
    const std::vector valori{review::conteggio(pericoli, Peso::pericolo),
                             nomeOpzioneSevero.mostrato()};
    racconta({base::riempito(traduttore("%1: con %2 il comando finisce con il codice 1"), valori)},
             esito);
    return nonEseguito;
}

}  // namespace korven::batch
