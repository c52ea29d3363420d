#include "drawings/log/hatch_choice.hpp"

#include <algorithm>
#include <utility>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "drawings/hatch_library.hpp"
#include "drawings/log/layer_description.hpp"
#include "plot/plot_configuration.hpp"

namespace korven::drawings {

namespace {

constexpr int pennaColore = 9;  // before that of colour 1

// White is drawn black, and a pen without colour draws nothing.
plot::Colore disegnato(plot::Colore colore) { return colore == plot::bianco ? plot::nero : colore; }

}  // namespace

std::vector<VoceCampitura> vociCampitura() {
    std::vector<VoceCampitura> voci{{0, nomeCampitura(0)}};
    const Campiture& tutte = campiture();
    for (int n = 1; n < numeroCampiture; ++n)  // a code has two digits for the number
        if (tutte[n].nTratti > 0) voci.push_back({n, nomeCampitura(n)});
    return voci;
}

std::string nomeCampitura(int numero) {
    if (numero == 0) return base::traduttore("nessuna campitura");
    const Campitura& campitura = campiture()[numero];
    return std::to_string(numero) + ' ' +
           (campitura.nTratti > 0 ? campitura.nome : base::traduttore("non è nella libreria"));
}

double codiceCampitura(GruppoCampitura gruppo) {
    CodiceGrafico codice;
    codice.gruppi = {gruppo};
    return leggiDescrizione(parolaCodice(codice)).campitura;
}

bool trovata(const VoceCampitura& voce, std::string_view cercato) {
    const std::string nome = base::minuscolo(voce.nome);
    const std::string parole = base::minuscolo(cercato);
    for (std::size_t inizio = 0; inizio < parole.size();) {
        const std::size_t fine = std::min(parole.find(' ', inizio), parole.size());
        const std::string parola = parole.substr(inizio, fine - inizio);
        if (nome.find(parola) == std::string::npos) return false;
        inizio = fine + 1;
    }
    return true;
}

std::vector<VoceColore> vociColore() {
    std::vector<VoceColore> voci(massimoColoreStrato);
    for (std::size_t i = 0; i < voci.size(); ++i) voci[i].numero = static_cast<int>(i) + 1;
    try {
        const auto configurazione = plot::leggiConfigurazione(
            plot::fileConfigurazione(base::siglaLingua(base::linguaCorrente())));
        for (VoceColore& voce : voci) {
            const int indice = configurazione.penne[pennaColore + voce.numero].colore;
            if (indice == 0) continue;
            const auto& colore = configurazione.colori[indice];
            voce.valore = disegnato(colore.valore);
            voce.nome = colore.nome;
        }
    } catch (const base::ErroreFile&) {
        // The drawings tell of broken pens; what is chosen here is a number all the same.
    }
    return voci;
}

FiguraCampitura figura(std::string_view descrStrato) {
    const DescrizioneStrato letta = leggiDescrizione(descrStrato);
    FiguraCampitura mostrata{
        letta.campitura, vociColore()[static_cast<std::size_t>(letta.colore - 1)].valore, {}};
    for (const auto& gruppo : leggiCodice(descrStrato).gruppi) {
        if (gruppo.campitura == 0) continue;
        if (!mostrata.nome.empty()) mostrata.nome += ", ";
        mostrata.nome += nomeCampitura(gruppo.campitura);
    }
    if (mostrata.nome.empty()) mostrata.nome = nomeCampitura(0);
    return mostrata;
}

SceltaCampitura::SceltaCampitura(std::string descrStrato)
    : iniziale_(std::move(descrStrato)), codice_(leggiCodice(iniziale_)) {}

GruppoCampitura SceltaCampitura::gruppo(Livello livello) const {
    return livello < codice_.gruppi.size() ? codice_.gruppi[livello]
                                           : GruppoCampitura{0, passoNormale};
}

void SceltaCampitura::scegli(Livello livello, GruppoCampitura gruppo) {
    if (gruppo == this->gruppo(livello)) return;
    while (codice_.gruppi.size() <= livello) codice_.gruppi.push_back({0, passoNormale});
    codice_.gruppi[livello] = gruppo;
}

// A pattern over none is that pattern alone; a code that was not touched stays as it was written.
CodiceGrafico SceltaCampitura::scelto() const {
    CodiceGrafico codice = codice_;
    if (codice.gruppi != leggiCodice(iniziale_).gruppi)
        std::erase_if(codice.gruppi, [](const auto& g) { return g.campitura == 0; });
    if (!puoTogliereLinea()) codice.lineaAlPiede = true;
    return codice;
}

bool SceltaCampitura::puoTogliereLinea() const {
    return std::any_of(codice_.gruppi.begin(), codice_.gruppi.end(),
                       [](const auto& g) { return g.campitura != 0; });
}

double SceltaCampitura::campitura() const {
    return leggiDescrizione(parolaCodice(scelto())).campitura;
}

std::string SceltaCampitura::descrizione() const { return conCodice(iniziale_, scelto()); }

}  // namespace korven::drawings
