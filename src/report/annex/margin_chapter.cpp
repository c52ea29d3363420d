#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/strength_reduction.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using document::Stile;
using safety::Margine;

namespace {

// The heading has said the title.
void parte(const std::string& spiegazione, tables::Prospetto prospetto, Blocchi& blocchi) {
    blocchi.emplace_back(document::Titolo{2, std::exchange(prospetto.titolo, {})});
    paragrafo(spiegazione, blocchi);
    if (!prospetto.righe.empty()) return tavola(std::move(prospetto), blocchi);
    for (const std::string& nota : prospetto.note) paragrafo(nota, blocchi);
}

// Where an anchor is stands in its own chapter: a dash is enough.
tables::Prospetto statica(const Margine& margine) {
    tables::Prospetto p = tables::prospettoStatica(margine);
    for (auto& riga : p.righe) riga[3].perche.clear();
    return p;
}

void verdetto(const Margine& margine, Blocchi& blocchi) {
    const auto* decisiva = margine.decisiva();
    const bool grave = !margine.sta() || (decisiva != nullptr && decisiva->riduzione.F &&
                                          *decisiva->riduzione.F < safety::riduzionePericolosa);
    paragrafo(tables::verdetto(margine), blocchi, grave ? Stile::pericolo : Stile::rilievo);
    for (const std::string& frase : tables::frasi(margine)) paragrafo(frase, blocchi);
}

}  // namespace

void capitoloMargine(const Contesto& contesto, Blocchi& blocchi) {
    const dossier::Fascicolo& f = *contesto.fascicolo;
    if (!f.margine) {
        paragrafo(traduttore("Di questo progetto non c'è un margine."), blocchi, Stile::pericolo);
        if (f.parete.fasi.empty() || !f.parete.sta())
            paragrafo(tables::perche(f.parete, f.parete.fasiInEquilibrio() + 1), blocchi);
        return;
    }
    const Margine& margine = *f.margine;
    verdetto(margine, blocchi);
    parte(riempito(traduttore("F divide la tangente dell'angolo di attrito e la coesione di tutti "
                              "gli strati, dai due lati: è il più grande con cui la fase ha ancora "
                              "un equilibrio (Griffiths, Lane, Slope stability analysis by finite "
                              "elements, 1999). Sotto %1 è da vedere, sotto %2 è un pericolo. Nei "
                              "calcoli del resto del documento il terreno ha tutta la sua "
                              "resistenza. Passiva: la pressione del terreno davanti alla paratia "
                              "sotto lo scavo, in parte della sua resistenza passiva."),
                   {base::testoDecimali(safety::riduzioneDaVedere, 2),
                    base::testoDecimali(safety::riduzionePericolosa, 2)}),
          tables::prospettoMargine(margine), blocchi);
    parte(traduttore("I massimi di tutte le fasi con i segmenti del progetto e con quattro volte "
                     "tanti: quanto la divisione in segmenti ne sposta i valori."),
          tables::prospettoMaglia(margine), blocchi);
    parte(traduttore("I massimi dell'equilibrio dei nodi accanto a quelli della relazione. "
                     "Differiscono dove le regole della relazione lasciano la statica: forza in "
                     "testa, tiranti lenti, piede incastrato, puntoni molto rigidi."),
          statica(margine), blocchi);
}

}  // namespace korven::report
