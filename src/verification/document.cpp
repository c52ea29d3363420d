#include "verification/document.hpp"

#include <algorithm>
#include <utility>

#include "base/filled_text.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "document/page.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/scene_plot.hpp"
#include "verification/figure.hpp"
#include "verification/table.hpp"
#include "verification/words.hpp"

namespace korven::verification {

namespace {

using base::riempito;
using base::traduttore;
using document::Blocco;
using document::Paragrafo;
using document::Stile;
using document::Titolo;

void aggiungiRiga(std::string& testo, const std::string& riga) {
    if (!testo.empty()) testo += '\n';
    testo += riga;
}

// Where the values of a case come from, and why they are met so closely.
std::string spiegazione(const Caso& caso) {
    std::string testo;
    for (const auto& fonte : caso.fonte)
        aggiungiRiga(testo, riempito(traduttore("Fonte: %1"), {traduttore(fonte)}));
    for (const auto& formula : caso.calcolo) aggiungiRiga(testo, formula);
    if (!caso.tolleranza.empty())
        aggiungiRiga(testo, riempito(traduttore("Tolleranza: %1"), {traduttore(caso.tolleranza)}));
    if (!caso.noto.empty())
        aggiungiRiga(testo, riempito(traduttore("Differenza nota: %1"), {traduttore(caso.noto)}));
    return testo;
}

// Blanks at which no line ends: in a number with its unit, and between a place and its number.
void unisci(std::string& testo, std::size_t da) {
    constexpr const char* unito = "\u00a0";
    for (std::size_t i = da; (i = testo.find(' ', i)) != std::string::npos; ++i)
        if (i == 0 || testo[i - 1] != ',') testo.replace(i, 1, unito);
}

void unisci(tables::Prospetto& tavola) {
    for (auto& riga : tavola.righe)
        for (std::size_t i = 0; i < riga.size(); ++i)
            unisci(riga[i].testo,
                   i == 1 ? std::min(riga[i].testo.find(','), riga[i].testo.size()) : 0);
}

// Beside its quantity: the names of the cases leave little room for columns.
void unitaAccanto(tables::Prospetto& tavola) {
    constexpr std::size_t quantita = 1, unita = 5;
    for (auto& riga : tavola.righe) {
        const std::string sua = riga[unita].testo;
        if (!sua.empty() && sua != tables::nessuno) riga[quantita].testo += " [" + sua + "]";
        riga.erase(riga.begin() + unita);
    }
    tavola.colonne.erase(tavola.colonne.begin() + unita);
}

// At the width of the text; the drawing keeps its picture.
void aggiungiFigura(const Gruppo& gruppo, std::vector<Blocco>& blocchi) {
    constexpr double larghezza = document::larghezzaFigura, altezza = 10;  // [cm]
    const Caso* caso = casoInFigura(gruppo);
    if (caso == nullptr) return;
    FiguraGruppo f = figura(gruppo, *caso, drawings::misuraCarta(larghezza, altezza));
    blocchi.emplace_back(document::Figura{
        caso->nome + " · " + traduttore(caso->titolo), std::move(f.descrizione), larghezza, altezza,
        [scena = std::move(f.scena)] { drawings::disegnaScena(scena); }});
}

void aggiungiGruppo(const EsitoGruppo& esito, std::vector<Blocco>& blocchi) {
    const Gruppo& gruppo = *esito.gruppo;
    blocchi.emplace_back(Titolo{1, traduttore(gruppo.titolo)});
    if (!gruppo.descrizione.empty())
        blocchi.emplace_back(Paragrafo{traduttore(gruppo.descrizione)});
    aggiungiFigura(gruppo, blocchi);
    tables::Prospetto tavola = prospetto(esito);
    unisci(tavola);
    unitaAccanto(tavola);
    tavola.titolo.clear();
    tavola.note.clear();  // they stand with their cases
    blocchi.emplace_back(document::Tavola{std::move(tavola)});
    blocchi.emplace_back(Titolo{2, traduttore("I casi")});
    for (const EsitoCaso& caso : esito.casi) {
        blocchi.emplace_back(Titolo{3, caso.caso->nome + " · " + traduttore(caso.caso->titolo)});
        blocchi.emplace_back(Paragrafo{spiegazione(*caso.caso), Stile::nota});
    }
}

}  // namespace

document::Documento documento(const EsitoVerifica& esito, const std::string& data) {
    const std::string chi(base::nomeEVersione);
    document::Documento d;
    d.titolo = traduttore("Verifica del programma");
    d.autore = chi;
    d.data = data;
    d.lingua = base::siglaIso(base::linguaCorrente());
    d.testata = {chi, d.titolo};
    d.piede = data;
    d.blocchi.emplace_back(Titolo{1, d.titolo});
    d.blocchi.emplace_back(
        Paragrafo{traduttore("Ogni caso è una parete o una sezione con valori attesi che non "
                             "vengono da questo programma; di ciascuno si dice la fonte, la "
                             "tolleranza e il suo motivo.")});
    d.blocchi.emplace_back(
        Paragrafo{sommario(esito), esito.superata() ? Stile::rilievo : Stile::pericolo});
    for (const EsitoGruppo& gruppo : esito.gruppi) aggiungiGruppo(gruppo, d.blocchi);
    return d;
}

}  // namespace korven::verification
