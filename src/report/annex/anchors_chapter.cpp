#include <string>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/field_table.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/margin_words.hpp"
#include "tables/check_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::Fascicolo;
using dossier::StoriaTirante;
using project::DatiProgetto;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

constexpr const char* maiInOpera = "In nessuna fase in equilibrio il tirante è in opera.";

Cella tipo(const DatiProgetto& dati, int j) {
    const auto* codice =
        project::codice(project::campo(&DatiProgetto::tipoTirante), dati.tipoTirante[j]);
    return codice == nullptr ? Cella{} : tables::parola(traduttore(codice->voce));
}

// As the editors show it: a stiffness has few digits that matter.
Cella rigidezza(double conservata) {
    const double kN = mostrato(unita::rigidezzaAlMetro, conservata);
    return {.testo = base::testoNumero(kN), .numero = kN};
}

// Why the report has no number of an anchor.
Cella senzaRelazione(const Fascicolo& f) {
    if (!f.margine) return tables::senza(traduttore("nessun numero"));
    if (f.conRelazione()) return tables::senza(traduttore(maiInOpera));
    return tables::senza(inFrase(f.parete.sta() ? safety::paroleRelazione(*f.margine)
                                                : tables::verdetto(*f.margine)));
}

Prospetto elenco(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Tiranti"),
                .colonne = {numeri("Tirante"), simboli(unita::metri, "z"), colonna("Tipo"),
                            numeri(unita::rigidezzaAlMetro, "Rigidezza"),
                            numeri(unita::forzaAlMetro, "Pretensione"), numeri("Posa nella fase"),
                            numeri(unita::forzaAlMetro, "Alla posa"),
                            numeri(unita::forzaAlMetro, "Massima"), numeri("Fase"),
                            numeri(unita::forzaAlMetro, "Relazione")}};
    const DatiProgetto& dati = f.parete.dati;
    for (const StoriaTirante& t : f.tiranti) {
        auto& riga = p.righe.emplace_back(std::vector<Cella>{
            tables::cella(t.tirante), tables::profondita(t.profondita), tipo(dati, t.tirante),
            rigidezza(dati.rigTirante[t.tirante]), tables::forza(dati.pretTirante[t.tirante])});
        if (t.posa == 0)
            riga.resize(9, tables::senza(traduttore(maiInOpera)));
        else
            riga.insert(riga.end(), {tables::cella(t.posa), tables::forza(t.allaPosa),
                                     tables::forza(t.massimo), tables::cella(t.faseMassimo)});
        riga.push_back(t.relazione ? tables::cifre(mostrato(unita::forzaAlMetro, *t.relazione))
                                   : senzaRelazione(f));
    }
    p.note.push_back(
        traduttore("Alla posa: alla fine della fase che mette in opera il tirante. Massima: fra le "
                   "fasi in equilibrio."));
    p.note.push_back(traduttore("Relazione") + base::duePunti() +
                     traduttore("Forza che la relazione stampa: pretensione, più rigidezza per "
                                "quanto il suo nodo è andato oltre la posizione alla messa in "
                                "opera") +
                     ".");
    return p;
}

Prospetto perFase(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Forza dei tiranti in ogni fase"),
                .colonne = {numeri("Fase")}};
    for (const StoriaTirante& t : f.tiranti) {
        p.colonne.push_back(numeri(unita::forzaAlMetro, "Tirante %1"));
        p.colonne.back().titolo = riempito(p.colonne.back().titolo, {std::to_string(t.tirante)});
    }
    for (int k = 1; k <= f.parete.fasiInEquilibrio(); ++k) {
        auto& riga = p.righe.emplace_back(std::vector{tables::cella(k)});
        for (const StoriaTirante& t : f.tiranti) {
            const auto& tiro = t.tiri.at(static_cast<std::size_t>(k) - 1);
            riga.push_back(
                tiro ? tables::forza(*tiro)
                     : tables::senza(traduttore("Il tirante non è in opera in questa fase.")));
        }
    }
    if (!f.parete.sta())
        p.note.push_back(tables::perche(f.parete, f.parete.fasiInEquilibrio() + 1));
    return p;
}

}  // namespace

void capitoloTiranti(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    if (f.tiranti.empty()) {
        paragrafo(traduttore("Il progetto non ha tiranti."), blocchi);
        return;
    }
    paragrafo(
        traduttore("Forze per metro di paratia, trazione positiva. Nel modello un tirante è "
                   "una molla orizzontale: la forza nell'asse di un tirante con interasse i e "
                   "inclinazione a sull'orizzontale è T i / cos a."),
        blocchi);
    tavola(elenco(f), blocchi);
    if (f.parete.fasiInEquilibrio() > 0)
        tavola(perFase(f), blocchi);
    else
        paragrafo(tables::perche(f.parete, 1), blocchi, document::Stile::pericolo);
}

}  // namespace korven::report
