#include <algorithm>
#include <string>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/annex_drawings.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/chosen_rows.hpp"
#include "report/annex/peaks.hpp"
#include "report/annex/table_pieces.hpp"
#include "report/annex/twin_words.hpp"
#include "tables/node_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using document::Stile;
using dossier::Fascicolo;

namespace {

document::Figura figura(const Contesto& contesto) {
    constexpr double altezzaMinima = 8.5;  // of curves that can still be read
    const auto f = contesto.fascicolo;
    const auto [larghezza, altezza] = drawings::formatoInviluppi;
    return {traduttore("Inviluppi di momento, taglio e spostamento, con le curve delle fasi"),
            traduttore("Inviluppi di momento, taglio e spostamento, con le curve delle fasi") + ".",
            larghezza,
            altezza,
            [f, larghezza = larghezza, altezza = altezza] {
                drawings::disegnaInviluppi(f->parete, larghezza, altezza);
            },
            altezzaMinima,
            [f, larghezza = larghezza](double bassa) {
                drawings::disegnaInviluppi(f->parete, larghezza, bassa);
            }};
}

tables::Prospetto nodi(const Contesto& contesto) {
    const live::PareteViva& parete = contesto.fascicolo->parete;
    tables::Prospetto p = tables::prospettoInviluppo(parete);
    for (auto& riga : p.righe) riga.pop_back();  // the layer stands with each stage's nodes
    p.colonne.pop_back();
    sfoltisci(p, contesto.opzioni.righe, nodiDeiPicchi(parete, 0));
    return p;
}

}  // namespace

void capitoloInviluppi(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    const int stanno = f.parete.fasiInEquilibrio();
    if (stanno == 0) {
        paragrafo(percheInBreve(f.parete, 0), blocchi, Stile::pericolo);
        return;
    }
    if (!f.parete.sta())
        paragrafo(
            riempito(traduttore("Solo le fasi fino alla %1: le altre non sono in equilibrio."),
                     {std::to_string(stanno)}),
            blocchi, Stile::pericolo);
    paragrafo(traduttore("Il valore massimo e il minimo che ogni nodo raggiunge fra le fasi in "
                         "equilibrio."),
              blocchi);
    tavola(prospettoPicchi(f.parete, 0), blocchi);
    paragrafo(fraseDoppi(f, 0), blocchi, Stile::nota);
    blocchi.emplace_back(figura(contesto));
    tavola(nodi(contesto), blocchi);
}

}  // namespace korven::report
