#include "comparison/document.hpp"

#include <filesystem>
#include <utility>

#include "base/filled_text.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "comparison/tables.hpp"
#include "drawings/annex/annex_drawings.hpp"

namespace korven::comparison {

namespace {

using base::traduttore;
using document::Documento;
using document::Paragrafo;
using document::Stile;
using document::Titolo;

std::string nomeDelFile(const std::string& percorso) {
    return std::filesystem::path(percorso).filename().string();
}

// What the drawing calls them: as short as tells them apart.
std::pair<std::string, std::string> nomi(const Confronto& c) {
    std::string uno = nomeDelFile(c.prima.nome), altro = nomeDelFile(c.dopo.nome);
    if (uno == altro) return {c.prima.nome, c.dopo.nome};
    return {std::move(uno), std::move(altro)};
}

// A table under a heading of the document instead of its own title.
void aggiungi(tables::Prospetto prospetto, Documento& d) {
    d.blocchi.emplace_back(Titolo{2, std::exchange(prospetto.titolo, {})});
    if (!prospetto.righe.empty()) {
        d.blocchi.emplace_back(document::Tavola{std::move(prospetto)});
        return;
    }
    for (std::string& nota : prospetto.note) d.blocchi.emplace_back(Paragrafo{std::move(nota)});
}

std::string conImpronta(const std::string& frase, const Muro& muro) {
    const auto impronta = dossier::inBreve(muro.fascicolo.identita.impronta);
    return impronta.empty() ? frase : frase + " (SHA-256 " + std::string(impronta) + ")";
}

document::Figura curve(const std::shared_ptr<const Confronto>& confronto,
                       const drawings::FormatoFigura& formato) {
    const auto [uno, altro] = nomi(*confronto);
    return {.didascalia = {},
            .descrizione = base::riempito(
                traduttore("Le pareti A, %1, e B, %2, l'una accanto all'altra, e gli inviluppi "
                           "delle fasi in equilibrio, di A a tratto continuo, di B tratteggiati"),
                {uno, altro}),
            .larghezza = formato.larghezza,
            .altezza = formato.altezza,
            .disegna = [confronto, uno = uno, altro = altro, formato] {
                drawings::disegnaConfronto({confronto->prima.fascicolo.parete, uno},
                                           {confronto->dopo.fascicolo.parete, altro},
                                           formato.larghezza, formato.altezza);
            }};
}

}  // namespace

Documento documento(const std::shared_ptr<const Confronto>& confronto, const std::string& data) {
    const Confronto& c = *confronto;
    Documento d;
    d.titolo = traduttore("Confronto");
    d.autore = std::string(base::nomeEVersione);
    d.data = data;
    d.lingua = base::siglaIso(base::linguaCorrente());
    const auto [uno, altro] = nomi(c);
    d.testata = {d.titolo, uno + " / " + altro};
    d.piede = d.autore + ", " + data;
    d.blocchi.emplace_back(Titolo{1, d.titolo});
    const auto muri = frasiMuri(c);
    d.blocchi.emplace_back(Paragrafo{conImpronta(muri[0], c.prima)});
    d.blocchi.emplace_back(Paragrafo{conImpronta(muri[1], c.dopo)});
    for (std::string& frase : frasi(c))
        d.blocchi.emplace_back(Paragrafo{std::move(frase), Stile::rilievo});
    aggiungi(prospettoCampi(c), d);
    aggiungi(prospettoRisultati(c), d);
    if (auto fasi = prospettoFasi(c); !fasi.righe.empty()) aggiungi(std::move(fasi), d);
    if (const auto righe = righeOsservazioni(c); !righe.empty()) {
        d.blocchi.emplace_back(Titolo{2, traduttore("Osservazioni che cambiano")});
        for (const std::string& riga : righe) d.blocchi.emplace_back(Paragrafo{riga});
    }
    d.blocchi.emplace_back(document::SaltoPagina{});
    d.blocchi.emplace_back(Titolo{2, traduttore("Le due pareti")});
    auto figura = curve(confronto, drawings::formatoConfronto);
    figura.didascalia = traduttore("Le due pareti e gli inviluppi di momenti, tagli e spostamenti");
    d.blocchi.emplace_back(std::move(figura));
    return d;
}

Documento documentoCurve(const std::shared_ptr<const Confronto>& confronto) {
    Documento d;
    d.titolo = traduttore("Le due pareti");
    d.blocchi.emplace_back(curve(confronto, drawings::formatoConfrontoLargo));
    return d;
}

document::Formato formatoCurve() {
    constexpr double margine = 0.3 * document::puntiPerCentimetro;
    const auto [larga, alta] = drawings::formatoConfrontoLargo;
    return {.larghezza = larga * document::puntiPerCentimetro + 2 * margine,
            .altezza = alta * document::puntiPerCentimetro + 2 * margine,
            .sinistra = margine,
            .destra = margine,
            .sopra = margine,
            .sotto = margine,
            .cornice = false};
}

}  // namespace korven::comparison
