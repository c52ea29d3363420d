#include "safety/margin_words.hpp"

#include <algorithm>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/name_in_sentence.hpp"
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

constexpr const char* tenuta =
    "vincoli, tiranti o puntoni tengono la paratia qualunque sia il terreno";

std::string fasi(const std::vector<int>& quali) {
    std::string testo;
    for (const int fase : quali) testo += (testo.empty() ? "" : ", ") + std::to_string(fase);
    return traduttore(quali.size() == 1 ? "fase" : "fasi") + " " + testo;
}

// What the shortest length is not, and why.
std::string nonDaCostruire(const Margine& margine) {
    const bool bilico = margine.lunghezza.esito == EsitoLunghezza::trovata;
    std::string testo = traduttore("non è una lunghezza da costruire");
    if (bilico) testo += base::duePunti() + "F = 1";
    if (margine.sostegni)
        testo += (bilico ? std::string(", ") : base::duePunti()) +
                 traduttore("tiranti, puntoni e vincoli tengono senza limite");
    return testo;
}

// @param chiave  with a place for the stage in which the staged run ended
std::string nellaSuaFase(const Margine& margine, std::string_view chiave) {
    return base::riempito(traduttore(chiave), {std::to_string(margine.corsa.fase)});
}

}  // namespace

std::string testoF(double F, std::optional<double> chiesta) {
    constexpr double mezzaCifra = 0.005;
    const std::string vicino = base::testoDecimali(F, 2),
                      sotto = base::testoDecimali(F - mezzaCifra, 2);
    const double mostrato = base::leggiNumero(vicino).value_or(F);
    const auto sale = [&](double soglia) { return F < soglia && mostrato >= soglia; };
    for (const double soglia : {1.0, riduzionePericolosa, riduzioneDaVedere})
        if (sale(soglia)) return sotto;
    return chiesta && sale(*chiesta) ? sotto : vicino;
}

std::string testoRiduzione(const Riduzione& riduzione) {
    if (riduzione.oltre) return "> " + base::testoNumero(massimaRiduzione);
    if (!riduzione.F) return nessuno;
    return testoF(*riduzione.F) + (riduzione.limitePendio ? " *" : "");
}

std::string testoQuota(const std::optional<double>& quota) {
    return quota ? base::testoDecimali(*quota, 0, 2) : nessuno;
}

std::string testoTratti(const std::vector<equilibrium::Tratto>& tratti) {
    std::string testo;
    for (const equilibrium::Tratto& t : tratti) {
        if (!testo.empty()) testo += ", ";
        testo += metriAllineati(t.da);
        if (t.a != t.da) testo += "-" + metriAllineati(t.a);
    }
    return testo.empty() ? nessuno : testo;
}

std::string parole(const Riduzione& riduzione, double paratia) {
    if (riduzione.moto) return parole(*riduzione.moto, paratia);
    if (riduzione.limitePendio) return traduttore(limitePendenza);
    if (riduzione.oltre)
        return traduttore("nessun meccanismo fino a F =") + " " +
               base::testoNumero(massimaRiduzione) + base::duePunti() +
               traduttore(riduzione.senzaTerreno ? tenuta
                                                 : "basta un decimo della resistenza del terreno");
    return nessuno;
}

std::string parole(const MargineFase& fase, double paratia) {
    std::string moto = parole(fase.riduzione, paratia);
    return moto == nessuno && fase.perche ? traduttore("nessun equilibrio") : moto;
}

bool lunghezzaNota(const Margine& margine) {
    const MargineFase* caduta = margine.caduta();
    return margine.lunghezza.esito != EsitoLunghezza::mai || !caduta ||
           caduta->esito == EsitoFase::meccanismo;
}

std::string paroleLunghezza(const Margine& margine) {
    if (!lunghezzaNota(margine)) return {};
    const auto& [esito, lunghezza] = margine.lunghezza;
    const std::string inizio = traduttore("Lunghezza minima") + base::duePunti();
    switch (esito) {
        case EsitoLunghezza::trovata:
            return inizio + metriAllineati(*lunghezza) + " m" + base::puntoEVirgola() +
                   traduttore("la paratia è lunga") + " " + metriAllineati(margine.paratia) + " m" +
                   base::puntoEVirgola() + nonDaCostruire(margine);
        case EsitoLunghezza::sempre:
            return inizio + metriAllineati(*lunghezza) + " m" + base::puntoEVirgola() +
                   traduttore(
                       "la paratia è in equilibrio anche senza infissione sotto lo scavo più "
                       "profondo") +
                   base::puntoEVirgola() + nonDaCostruire(margine);
        case EsitoLunghezza::mai:
            return inizio + traduttore("nessuna fino a") + " " +
                   metriAllineati(massimaLunghezzaRelativa * margine.paratia) + " m";
        case EsitoLunghezza::vincolata:
            break;
    }
    return inizio + traduttore("nessuna, il piede è vincolato");
}

std::string paroleMaglia(const Margine& margine) {
    if (!margine.sta()) return {};
    const std::string testo = traduttore("Errore di maglia") + " (" + std::to_string(margine.nSeg) +
                              " " + traduttore("segmenti contro") + " " +
                              std::to_string(4 * margine.nSeg) + ")" + base::duePunti();
    if (!margine.maglia)
        return testo + traduttore("con una maglia più fine una fase non è in equilibrio");
    const std::pair<const char*, const ErroreGrandezza*> grandezze[] = {
        {"momento positivo", &margine.maglia->momentoPositivo},
        {"momento negativo", &margine.maglia->momentoNegativo},
        {"taglio", &margine.maglia->taglio},
        {"spostamento", &margine.maglia->spostamento},
        {"Tiranti e puntoni", &margine.maglia->tiro},
    };
    std::string errori;
    for (const auto& [nome, errore] : grandezze)
        if (errore->quota)
            errori += (errori.empty() ? "" : ", ") + base::nellaFrase(traduttore(nome)) + " " +
                      base::testoDecimali(*errore->quota, 1, 2) + " %";
    return errori.empty() ? errori : testo + errori;
}

std::string paroleDecisiva(const Margine& margine) {
    if (const MargineFase* caduta = margine.caduta())
        return caduta->perche ? inBreve(*caduta->perche)
                              : traduttore("nessun equilibrio nella fase") + " " +
                                    std::to_string(caduta->fase);
    const MargineFase* fase = margine.decisiva();
    const std::string inizio = traduttore("F più piccolo") + base::duePunti();
    if (!fase) return inizio + "> " + base::testoNumero(massimaRiduzione);
    return inizio + testoRiduzione(fase->riduzione) + ", " + traduttore("fase") + " " +
           std::to_string(fase->fase) + base::duePunti() + parole(fase->riduzione, margine.paratia);
}

std::string paroleRelazione(const Margine& margine) {
    if (margine.relazione || !margine.sta()) return {};
    switch (margine.corsa.modo) {
        case analysis::ModoFine::singolare:
            return nellaSuaFase(margine,
                                "La relazione non ha numeri: il calcolo per fasi trova un sistema "
                                "singolare nella fase %1");
        case analysis::ModoFine::oltreLimite:
            return nellaSuaFase(margine,
                                "La relazione non ha numeri: l'iterazione del calcolo per fasi non "
                                "converge nella fase %1");
        case analysis::ModoFine::nonMostrabile:
            return traduttore("La relazione non ha numeri: nessuna relazione può mostrarli");
        case analysis::ModoFine::compiuta:
        case analysis::ModoFine::rifiutata:
        case analysis::ModoFine::fermata:
            break;
    }
    return traduttore("La relazione non ha numeri");
}

std::string paroleSenzaRelazione(const Margine& margine) {
    if (margine.relazione || !margine.sta()) return {};
    switch (margine.corsa.modo) {
        case analysis::ModoFine::singolare:
            return nellaSuaFase(
                margine,
                "in equilibrio, ma il calcolo per fasi trova un sistema singolare nella fase %1: "
                "niente relazione");
        case analysis::ModoFine::oltreLimite:
            return nellaSuaFase(
                margine,
                "in equilibrio, ma il calcolo per fasi non converge nella fase %1: niente "
                "relazione");
        case analysis::ModoFine::nonMostrabile:
            return traduttore("in equilibrio, ma nessuna relazione può mostrarne i numeri");
        case analysis::ModoFine::compiuta:
        case analysis::ModoFine::rifiutata:
        case analysis::ModoFine::fermata:
            break;
    }
    return {};
}

std::string paroleMetodo(const Margine& margine) {
    return traduttore(
               "Numeri della soluzione di equilibrio, non del file dei risultati; segmenti") +
           base::duePunti() + std::to_string(margine.nSeg);
}

std::string notaPendenza(const Margine& margine) {
    const bool serve = std::any_of(margine.fasi.begin(), margine.fasi.end(),
                                   [](const auto& fase) { return fase.riduzione.limitePendio; });
    return serve ? "* " + traduttore(limitePendenza) : std::string();
}

std::string notaOltre(const Margine& margine) {
    std::vector<int> tenute;
    for (const MargineFase& fase : margine.fasi)
        if (fase.riduzione.senzaTerreno) tenute.push_back(fase.fase);
    if (tenute.empty()) return {};
    return testoRiduzione(Riduzione{.F = {}, .oltre = true}) + ", " + fasi(tenute) +
           base::duePunti() + traduttore(tenuta);
}

}  // namespace korven::safety
