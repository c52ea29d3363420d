#include "verification/document.hpp"

#include <array>

#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "verification/table.hpp"
#include "verification/words.hpp"

namespace korven::verification {

namespace {

using base::traduttore;
using document::Blocco;
using document::Paragrafo;
using document::Stile;
using document::Titolo;

// Of the languages 1 to 6, as files name them.
constexpr std::array sigle = {"it", "de", "fr", "es", "en", "pt"};

void aggiungiRiga(std::string& testo, const std::string& riga) {
    if (!testo.empty()) testo += '\n';
    testo += riga;
}

// Where the values of a case come from, and why they are met so closely.
std::string spiegazione(const Caso& caso) {
    std::string testo;
    for (const auto& fonte : caso.fonte)
        aggiungiRiga(testo, traduttore("Fonte") + ": " + traduttore(fonte));
    for (const auto& formula : caso.calcolo) aggiungiRiga(testo, formula);
    if (!caso.tolleranza.empty())
        aggiungiRiga(testo, traduttore("Tolleranza") + ": " + traduttore(caso.tolleranza));
    if (!caso.noto.empty())
        aggiungiRiga(testo, traduttore("Differenza nota") + ": " + traduttore(caso.noto));
    return testo;
}

void aggiungiGruppo(const EsitoGruppo& esito, std::vector<Blocco>& blocchi) {
    const Gruppo& gruppo = *esito.gruppo;
    blocchi.emplace_back(Titolo{1, traduttore(gruppo.titolo)});
    if (!gruppo.descrizione.empty())
        blocchi.emplace_back(Paragrafo{traduttore(gruppo.descrizione)});
    tables::Prospetto tavola = prospetto(esito);
    tavola.titolo.clear();
    tavola.note.clear();  // they stand with their cases
    blocchi.emplace_back(document::Tavola{std::move(tavola)});
    blocchi.emplace_back(Titolo{2, traduttore("I casi")});
    for (const EsitoCaso& caso : esito.casi) {
        blocchi.emplace_back(Titolo{3, caso.caso->nome + ": " + traduttore(caso.caso->titolo)});
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
    d.lingua = sigle.at(static_cast<std::size_t>(base::linguaCorrente()) - 1);
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
