#include "safety/mesh_words.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::safety {

namespace {

using base::riempito;
using base::traduttore;

constexpr std::array<int, 3> finezza = {1, 2, 4};  // segments over those of the project

std::string percento(double quota) { return base::testoDecimali(quota, 1, 2); }

std::string segmenti(const Margine& margine, std::size_t maglia) {
    return std::to_string(margine.nSeg * finezza[maglia]);
}

// The finer mesh that uses most of the resistance; 0 where none uses more than the project's.
std::size_t peggiore(const UsoMaglia& u) {
    std::size_t i = 0;
    for (const std::size_t j : {1U, 2U})
        if (u.quota(j) > u.quota(i)) i = j;
    return i;
}

// A finer mesh on which the verdict is another one.
std::size_t altroVerdetto(const UsoMaglia& u) {
    const auto fallita = [&](std::size_t i) { return u.maglie[i] && u.maglie[i]->fallita; };
    return fallita(2) != fallita(0) ? 2 : 1;
}

bool cresce(const UsoMaglia& u) {
    const double suo = u.quota(0), fine = u.quota(peggiore(u));
    return fine - suo > std::max(crescitaUsoDetta * suo, crescitaUsoMinima);
}

std::string passaggio(const Margine& margine, const UsoMaglia& u, std::size_t maglia) {
    return riempito(traduttore("%1 da %2 % con %3 segmenti a %4 % con %5"),
                    {traduttore(nome(u.cosa)), percento(u.quota(0)), segmenti(margine, 0),
                     percento(u.quota(maglia)), segmenti(margine, maglia)});
}

// @param frase  with a place for what changes
void avviso(bool verdetto, const char* frase, const std::string& chi,
            std::vector<AvvisoMaglia>& avvisi) {
    if (!chi.empty()) avvisi.push_back({verdetto, riempito(traduttore(frase), {chi})});
}

void aggiungi(std::string parte, std::string& testo) {
    testo += (testo.empty() ? std::string() : base::puntoEVirgola()) + std::move(parte);
}

}  // namespace

std::string_view nome(results::Verifica verifica) {
    switch (verifica) {
        case results::Verifica::momentoPositivo:
            return "flessione con momento positivo";
        case results::Verifica::momentoNegativo:
            return "flessione con momento negativo";
        case results::Verifica::bielle:
            return "taglio delle bielle di calcestruzzo";
        case results::Verifica::armatura:
            break;
    }
    return "taglio dell'armatura d'anima";
}

std::string paroleUsiMaglia(const Margine& margine) {
    if (!margine.maglia || margine.maglia->usi.empty()) return {};
    std::string usi;
    for (const UsoMaglia& u : margine.maglia->usi)
        aggiungi(riempito(traduttore("%1 %2, %3 e %4 %"),
                          {traduttore(nome(u.cosa)), percento(u.quota(0)), percento(u.quota(1)),
                           percento(u.quota(2))}),
                 usi);
    return base::conDuePunti(
        riempito(traduttore("Sfruttamenti con %1, %2 e %3 segmenti"),
                 {segmenti(margine, 0), segmenti(margine, 1), segmenti(margine, 2)}),
        usi);
}

std::string paroleTendenza(const UsoMaglia& uso) {
    const std::optional<double> limite = uso.limite();
    if (!limite) return {};
    return riempito(traduttore("verso %1 % con maglie sempre più fini"), {percento(*limite)});
}

std::vector<AvvisoMaglia> avvisiMaglia(const Margine& margine) {
    if (!margine.sta()) return {};
    if (!margine.maglia)
        return {{true, traduttore("Con una maglia più fine una fase non è in equilibrio: il "
                                  "verdetto dipende dal numero dei segmenti. Aumentarli, finché "
                                  "non cambia più.")}};
    std::string cambiano, vanno, crescono;
    for (const UsoMaglia& u : margine.maglia->usi) {
        const EsitoMaglie esito = u.esito();
        if (esito == EsitoMaglie::cambia)
            aggiungi(passaggio(margine, u, altroVerdetto(u)), cambiano);
        else if (esito == EsitoMaglie::nonAssestata)
            aggiungi(passaggio(margine, u, 2) + ", " + paroleTendenza(u), vanno);
        else if (cresce(u))
            aggiungi(passaggio(margine, u, peggiore(u)), crescono);
    }
    std::vector<AvvisoMaglia> avvisi;
    avviso(
        true,
        "Una maglia più fine cambia il verdetto: lo sfruttamento passa, %1. Aumentare i segmenti, "
        "finché non cambia più; fino ad allora vale lo sfruttamento maggiore.",
        cambiano, avvisi);
    avviso(true,
           "Il verdetto non è a convergenza: lo sfruttamento cresce, %1. Con queste maglie la "
           "sezione è "
           "verificata, con il valore a cui tendono no: verificarla con quello.",
           vanno, avvisi);
    avviso(false,
           "Una maglia più fine dà uno sfruttamento maggiore: %1. Tenere conto della differenza, o "
           "aumentare i segmenti.",
           crescono, avvisi);
    return avvisi;
}

}  // namespace korven::safety
