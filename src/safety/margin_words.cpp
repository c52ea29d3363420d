#include "safety/margin_words.hpp"

#include <algorithm>
#include <utility>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "safety/words.hpp"

namespace korven::safety {

namespace {

using base::traduttore;
using equilibrium::EsitoFase;

constexpr const char* nessuno = "-";
constexpr const char* limitePendenza =
    "oltre F l'angolo di attrito ridotto è minore della pendenza del terreno";

}  // namespace

std::string testoRiduzione(const Riduzione& riduzione) {
    if (riduzione.oltre) return "> " + base::testoNumero(massimaRiduzione);
    if (!riduzione.F) return nessuno;
    std::string testo = base::testoDecimali(*riduzione.F, 2);
    if (*riduzione.F < 1 && testo == "1.00") testo = "0.99";
    return testo + (riduzione.limitePendio ? " *" : "");
}

std::string testoQuota(const std::optional<double>& quota) {
    return quota ? base::testoDecimali(*quota, 0, 2) : nessuno;
}

std::string testoTratti(const std::vector<equilibrium::Tratto>& tratti) {
    std::string testo;
    for (const equilibrium::Tratto& t : tratti) {
        if (!testo.empty()) testo += ", ";
        testo += metri(t.da);
        if (t.a != t.da) testo += "-" + metri(t.a);
    }
    return testo.empty() ? nessuno : testo;
}

std::string parole(const Riduzione& riduzione, double paratia) {
    if (riduzione.moto) return parole(*riduzione.moto, paratia);
    if (riduzione.limitePendio) return traduttore(limitePendenza);
    if (riduzione.oltre)
        return traduttore("nessun meccanismo fino a F =") + " " +
               base::testoNumero(massimaRiduzione);
    return nessuno;
}

std::string paroleLunghezza(const Margine& margine) {
    const auto& [esito, lunghezza] = margine.lunghezza;
    const MargineFase* caduta = margine.caduta();
    const std::string inizio = traduttore("Lunghezza minima") + ": ";
    switch (esito) {
        case EsitoLunghezza::trovata:
            return inizio + metri(*lunghezza) + " m; " + traduttore("la paratia è lunga") + " " +
                   metri(margine.paratia) + " m";
        case EsitoLunghezza::sempre:
            return inizio + metri(*lunghezza) + " m; " +
                   traduttore("la paratia sta anche senza infissione sotto lo scavo più profondo");
        case EsitoLunghezza::mai:
            if (caduta && caduta->esito != EsitoFase::meccanismo) return {};
            return inizio + traduttore("nessuna fino a") + " " +
                   metri(massimaLunghezzaRelativa * margine.paratia) + " m";
        case EsitoLunghezza::vincolata:
            break;
    }
    return inizio + traduttore("nessuna, il piede è vincolato");
}

std::string paroleMaglia(const Margine& margine) {
    if (!margine.sta()) return {};
    std::string testo = traduttore("Errore di maglia") + " (" + std::to_string(margine.nSeg) + " " +
                        traduttore("segmenti contro") + " " + std::to_string(4 * margine.nSeg) +
                        "): ";
    if (!margine.maglia) return testo + traduttore("con una maglia più fine una fase non sta");
    const std::pair<const char*, const ErroreGrandezza*> grandezze[] = {
        {"momento", &margine.maglia->momento},
        {"taglio", &margine.maglia->taglio},
        {"spostamento", &margine.maglia->spostamento},
        {"tiro", &margine.maglia->tiro},
    };
    const char* segno = "";
    for (const auto& [nome, errore] : grandezze) {
        if (!errore->quota) continue;
        testo += segno + traduttore(nome) + " " + base::testoDecimali(*errore->quota, 1, 2) + " %";
        segno = ", ";
    }
    return testo;
}

std::string paroleDecisiva(const Margine& margine) {
    if (const MargineFase* caduta = margine.caduta())
        return caduta->perche ? inBreve(*caduta->perche)
                              : traduttore("nessun equilibrio nella fase") + " " +
                                    std::to_string(caduta->fase);
    const MargineFase* fase = margine.decisiva();
    const std::string inizio = traduttore("F più piccolo") + ": ";
    if (!fase) return inizio + "> " + base::testoNumero(massimaRiduzione);
    return inizio + testoRiduzione(fase->riduzione) + ", " + traduttore("fase") + " " +
           std::to_string(fase->fase) + ": " + parole(fase->riduzione, margine.paratia);
}

std::string paroleMetodo(const Margine& margine) {
    return traduttore("Numeri dell'equilibrio certo, non del file dei risultati; segmenti") + ": " +
           std::to_string(margine.nSeg);
}

std::string notaPendenza(const Margine& margine) {
    const bool serve = std::any_of(margine.fasi.begin(), margine.fasi.end(),
                                   [](const auto& fase) { return fase.riduzione.limitePendio; });
    return serve ? "* " + traduttore(limitePendenza) : std::string();
}

}  // namespace korven::safety
