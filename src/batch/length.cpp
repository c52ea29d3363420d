#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "analysis/run_arrays.hpp"
#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/question_outcome.hpp"
#include "batch/run/reviewed_run.hpp"
#include "project/field_table.hpp"
#include "structure/section_validity.hpp"
#include "studies/questions/question_words.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using project::Progetto;

constexpr base::Gemelli opzioneSpostamento{"--spostamento-max", "--max-displacement"};

studies::Scala scala(const DomandaLunghezza& chiesta) {
    const project::Limiti& limiti =
        *project::campo(&project::DatiProgetto::lunghezzaParatia).limiti;
    constexpr double inPiu = 2;  // lengths of the project's
    return {.passo = chiesta.passo,
            .finoA = std::min(limiti.massimo,
                              chiesta.finoA.value_or(inPiu * Progetto.lunghezzaParatia))};
}

// Why the question makes no sense of this wall, as a key; empty if it does.
std::string_view motivo(const DomandaLunghezza& chiesta) {
    if (analysis::vincoli(Progetto).bloccoPiede)
        return "Il piede è vincolato: una paratia più corta sarebbe un'altra, e la lunghezza non "
               "si "
               "cerca.";
    if (chiesta.resistenza && !structure::sezioneDefinita(Progetto.sezione))
        return "La sezione non è definita: senza non c'è resistenza da verificare.";
    return {};
}

int esegui(const Opzioni& opzioni, const PorteComando&, Esito& esito) {
    esito.inMemoria = true;
    const double spostamento = opzioni.lunghezza.spostamento.value_or(0);
    if (const auto male = studies::spostamentoSbagliato(spostamento); !male.empty()) {
        fallisci(usoErrato,
                 base::conDuePunti(
                     opzioneSpostamento.mostrato() + ' ' + base::testoNumero(spostamento), male),
                 esito);
        return usoErrato;
    }
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo&) -> int {
            const DomandaLunghezza& chiesta = opzioni.lunghezza;
            if (const auto perche = motivo(chiesta); !perche.empty()) {
                racconta({traduttore(perche)}, esito);
                return nonEseguito;
            }
            RispostaLunghezza risposta{
                {chiesta.riduzione, chiesta.spostamento, chiesta.resistenza}, scala(chiesta), {}};
            risposta.ricerca =
                studies::cercaLunghezza(Progetto, avvio.nSeg, risposta.criteri, risposta.scala,
                                        [] { return Interruzioni::chiesta() != 0; });
            if (risposta.ricerca.fermata) {
                racconta({traduttore("Calcolo interrotto dall'utente.")}, esito);
                return nonEseguito;
            }
            const bool trovata = risposta.ricerca.risposta.has_value();
            if (!trovata)
                racconta({studies::risposta(risposta.ricerca, risposta.criteri, risposta.scala)},
                         esito);
            esito.lunghezza = std::make_shared<const RispostaLunghezza>(std::move(risposta));
            return trovata ? fatto : nonEseguito;
        });
}

template <std::optional<double> DomandaLunghezza::*dove>
bool leggiPositivo(Opzioni& o, const std::string& valore) {
    o.lunghezza.*dove = base::leggiNumero(valore);
    return base::soloUnNumero(valore) && o.lunghezza.*dove && *(o.lunghezza.*dove) > 0;
}

// A step below the hundredth of a metre is finer than a wall is built.
bool leggiPasso(Opzioni& o, const std::string& valore) {
    constexpr double minimo = 0.01, massimo = 10;
    o.lunghezza.passo = base::leggiNumero(valore).value_or(0);
    return base::soloUnNumero(valore) && o.lunghezza.passo >= minimo &&
           o.lunghezza.passo <= massimo;
}

std::vector<RigaOpzione> opzioniDomanda() {
    constexpr base::Gemelli metri = base::uguali("M"), numero = base::uguali("F");
    return {{{"--sicurezza-min", "--min-safety"},
             "la riduzione della resistenza F è almeno questa in ogni fase",
             leggiPositivo<&DomandaLunghezza::riduzione>,
             numero},
            {opzioneSpostamento, "lo spostamento è al più questo, in metri",
             leggiPositivo<&DomandaLunghezza::spostamento>, metri},
            {{"--resistenza", "--strength"},
             "la sezione è verificata a flessione e taglio",
             [](Opzioni& o) { o.lunghezza.resistenza = true; }},
            {{"--fino-a", "--up-to"},
             "la lunghezza massima da provare, in metri (altrimenti due volte quella del progetto)",
             leggiPositivo<&DomandaLunghezza::finoA>,
             metri},
            {{"--passo", "--step"},
             "di quanto crescono le lunghezze, in metri, da 0.01 a 10",
             leggiPasso,
             metri,
             {},
             base::testoNumero(DomandaLunghezza().passo)}};
}

}  // namespace

RigaComando comandoLunghezza() {
    return {{"lunghezza", "length"},
            "cerca la paratia più corta che soddisfa i criteri in tutte le fasi",
            insieme({opzioniProgetto(),
                     {opzioneMetodo(), opzioneSegmenti(), opzioneEJ()},
                     opzioniDomanda()}),
            esegui};
}

}  // namespace korven::batch
