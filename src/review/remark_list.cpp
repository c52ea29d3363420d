#include "review/remark_list.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

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
std::string campoEValore(const project::Campo& campo, double conservato) {
    constexpr double massimo = std::numeric_limits<double>::max();
    return nomeCampo(campo) + " = " +
           base::testoNumero(std::clamp(project::mostrato(campo, conservato), -massimo, massimo));
}

std::string inRiga(const Soggetto& soggetto, const std::string& testo) {
    return soggetto.testo.empty() ? testo : soggetto.testo + ": " + testo;
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

Soggetto rigaConValore(const project::DatiProgetto& dati, const project::Membro& colonna,
                       int numero) {
    const project::Campo& campo = project::campo(colonna);
    Soggetto soggetto = riga(colonna, numero);
    soggetto.testo += ": " + campoEValore(campo, project::numeroConservato(dati, campo, numero));
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

Soggetto insieme(Soggetto uno, const Soggetto& altro) {
    uno.testo += ", " + altro.testo;
    uno.campi.insert(uno.campi.end(), altro.campi.begin(), altro.campi.end());
    return uno;
}

std::string conValoreTraParentesi(std::string testo, double valore) {
    return std::move(testo) + " (" + base::testoNumero(valore) + ")";
}

std::string nomeCampo(const project::Campo& campo) {
    const bool detto =
        !campo.codici.empty() || std::find(std::begin(dettiPerEsteso), std::end(dettiPerEsteso),
                                           campo.membro) != std::end(dettiPerEsteso);
    return base::traduttore(detto ? std::string(campo.cosa) : project::etichetta(campo));
}

std::string nomeRiga(const project::Campo& colonna, int numero) {
    const char* nome = colonna.parte == project::Parte::strati    ? "strato"
                       : colonna.parte == project::Parte::tiranti ? "tirante"
                       : colonna.parte == project::Parte::fasi    ? "fase"
                                                                  : "titolo";
    return base::traduttore(nome) + " " + std::to_string(numero);
}

bool intero(double valore) { return valore == std::floor(valore); }

}  // namespace korven::review
