#include "review/remark_list.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/name_in_sentence.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "project/code_words.hpp"
#include "project/seven_digits.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::Sezione;

constexpr project::Membro dettiPerEsteso[] = {
    &DatiProgetto::coeffM,       &DatiProgetto::sforzoNormale, &DatiProgetto::gammaAcqua,
    &Sezione::spessoreDiaframma, &Sezione::paliInterasse,      &Sezione::palancolaBase,
    &Sezione::armInterasse,
};

// The shown value may be too large for a number; the review must still be able to tell it.
std::string valoreMostrato(const project::Campo& campo, double conservato) {
    if (const auto* codice = project::codice(campo, conservato))
        return project::voceTradotta(campo, *codice);
    constexpr double massimo = std::numeric_limits<double>::max();
    return base::testoNumero(project::conSetteCifre(
        std::clamp(project::mostrato(campo, conservato), -massimo, massimo)));
}

std::string campoEValore(const project::Campo& campo, double conservato) {
    return nomeCampo(campo) + " = " + valoreMostrato(campo, conservato);
}

struct NomiRighe {
    const char *singolare, *plurale;
};

NomiRighe nomiRighe(project::Parte parte) {
    switch (parte) {
        case project::Parte::strati:
            return {"strato", "strati"};
        case project::Parte::tiranti:
            return {"tirante", "tiranti"};
        case project::Parte::fasi:
            return {"fase", "fasi"};
        default:
            return {"titolo", "titoli"};
    }
}

// What acts in tension and compression is a strut, and called so.
std::string nomeRiga(const DatiProgetto& dati, const project::Campo& colonna, int numero) {
    return colonna.parte == project::Parte::tiranti
               ? base::nellaFrase(project::nomeTirante(dati, numero))
               : review::nomeRiga(colonna, numero);
}

std::string plurale(const DatiProgetto& dati, const project::Campo& colonna,
                    const std::vector<int>& numeri) {
    const bool puntoni =
        colonna.parte == project::Parte::tiranti &&
        std::all_of(numeri.begin(), numeri.end(), [&](int j) { return project::puntone(dati, j); });
    return puntoni ? base::nellaFrase(base::traduttore("Puntoni"))
                   : base::traduttore(nomiRighe(colonna.parte).plurale);
}

// @param righe  what they are called, translated
Soggetto inFila(const project::Campo& campo, const std::string& righe,
                const std::vector<int>& numeri) {
    std::vector<std::string> quali;
    Soggetto soggetto;
    for (const int numero : numeri) {
        quali.push_back(std::to_string(numero));
        soggetto.campi.push_back(project::nomeStabile(campo, numero));
    }
    soggetto.testo = righe + " " + review::inFila(quali);
    return soggetto;
}

std::string inRiga(const Soggetto& soggetto, const std::string& testo) {
    return soggetto.testo.empty() ? testo : soggetto.testo + base::duePunti() + testo;
}

}  // namespace

void ElencoOsservazioni::aggiungi(Voce voce, const Soggetto& soggetto,
                                  const std::vector<std::string>& valori) {
    conParole(voce, soggetto, testo(voce, valori));
}

void ElencoOsservazioni::conValore(Voce voce, const Soggetto& soggetto, double valore) {
    conParole(voce, soggetto, conValoreTraParentesi(testo(voce), valore));
}

void ElencoOsservazioni::conParole(Voce voce, const Soggetto& soggetto, const std::string& testo) {
    osservazioni_.push_back(
        {voce->codice, voce->peso, inRiga(soggetto, testo), soggetto.campi, voce->guida});
}

Osservazioni ElencoOsservazioni::ordinate() {
    perPeso(osservazioni_);
    return std::exchange(osservazioni_, {});
}

Osservazione una(Voce voce, const std::string& testo) {
    ElencoOsservazioni elenco;
    elenco.conParole(voce, testo);
    return elenco.ordinate().front();
}

std::string testo(Voce voce, const std::vector<std::string>& valori) {
    return base::riempito(base::traduttore(voce->testo), valori);
}

Soggetto riga(const project::Membro& colonna, int numero) {
    const project::Campo& campo = project::campo(colonna);
    return {nomeRiga(campo, numero), {project::nomeStabile(campo, numero)}};
}

Soggetto riga(const DatiProgetto& dati, const project::Membro& colonna, int numero) {
    const project::Campo& campo = project::campo(colonna);
    return {nomeRiga(dati, campo, numero), {project::nomeStabile(campo, numero)}};
}

Soggetto rigaConValore(const project::DatiProgetto& dati, const project::Membro& colonna,
                       int numero) {
    const project::Campo& campo = project::campo(colonna);
    Soggetto soggetto = riga(dati, colonna, numero);
    soggetto.testo +=
        base::duePunti() + campoEValore(campo, project::numeroConservato(dati, campo, numero));
    return soggetto;
}

Soggetto campoConValore(const project::Membro& membro, double conservato) {
    const project::Campo& campo = project::campo(membro);
    return {campoEValore(campo, conservato), {project::nomeStabile(campo)}};
}

Soggetto dopo(const std::string& prima, Soggetto soggetto) {
    soggetto.testo.insert(0, prima);
    return soggetto;
}

Soggetto righe(const project::Membro& colonna, const std::vector<int>& numeri) {
    if (numeri.size() == 1) return riga(colonna, numeri.front());
    const project::Campo& campo = project::campo(colonna);
    return inFila(campo, base::traduttore(nomiRighe(campo.parte).plurale), numeri);
}

Soggetto righeConValori(const project::DatiProgetto& dati, const project::Membro& colonna,
                        const std::vector<int>& numeri) {
    if (numeri.size() == 1) return rigaConValore(dati, colonna, numeri.front());
    const project::Campo& campo = project::campo(colonna);
    std::vector<std::string> valori;
    for (const int numero : numeri)
        valori.push_back(valoreMostrato(campo, project::numeroConservato(dati, campo, numero)));
    Soggetto soggetto = inFila(campo, plurale(dati, campo, numeri), numeri);
    soggetto.testo += base::duePunti() + nomeCampo(campo) + " = " + inFila(valori);
    return soggetto;
}

Soggetto insieme(Soggetto uno, const Soggetto& altro) {
    uno.testo += ", " + altro.testo;
    uno.campi.insert(uno.campi.end(), altro.campi.begin(), altro.campi.end());
    return uno;
}

std::string conValoreTraParentesi(std::string testo, double valore) {
    return std::move(testo) + " (" + base::testoNumero(valore) + ")";
}

std::string inFila(const std::vector<std::string>& pezzi) {
    std::string fila;
    for (const auto& pezzo : pezzi) fila += (fila.empty() ? "" : ", ") + pezzo;
    return fila;
}

std::string nomeCampo(const project::Campo& campo) {
    // What no editor shows has the caption of the log.
    if (campo.membro == project::Membro(&DatiProgetto::suStrato))
        return base::traduttore("Su [kN/m²]");
    const bool detto =
        !campo.codici.empty() || std::find(std::begin(dettiPerEsteso), std::end(dettiPerEsteso),
                                           campo.membro) != std::end(dettiPerEsteso);
    return base::traduttore(detto ? std::string(campo.cosa) : project::etichetta(campo));
}

std::string nomeRiga(const project::Campo& colonna, int numero) {
    return base::traduttore(nomiRighe(colonna.parte).singolare) + " " + std::to_string(numero);
}

bool intero(double valore) { return valore == std::floor(valore); }

}  // namespace korven::review
