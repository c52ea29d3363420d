#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/mesh_tables.hpp"
#include "report/annex/short_reasons.hpp"
#include "report/annex/table_pieces.hpp"
#include "report/annex/twin_words.hpp"
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
    if (!prospetto.righe.empty()) {
        paragrafo(spiegazione, blocchi);
        return tavola(std::move(prospetto), blocchi);
    }
    for (const std::string& nota : prospetto.note) paragrafo(nota, blocchi);
}

// Where there is no report, why: its rows would hold dashes beside numbers of the stages.
tables::Prospetto statica(const dossier::Fascicolo& f) {
    if (!f.doppi.empty()) return prospettoDoppi(f);
    tables::Prospetto p = tables::prospettoStatica(*f.margine, f.parete.dati);
    p.titolo = traduttore("Equilibrio e relazione");
    p.righe.clear();
    return p;
}

// Of a wall that falls cover and stage have told how.
void verdetto(const dossier::Fascicolo& f, Blocchi& blocchi) {
    const Margine& margine = *f.margine;
    const bool grave = !margine.sta() || margine.pericolosa();
    paragrafo(margine.sta() ? tables::verdetto(margine)
                            : percheInBreve(f.parete, f.parete.fasiInEquilibrio() + 1),
              blocchi, grave ? Stile::pericolo : Stile::rilievo);
    for (const std::string& frase : tables::frasi(margine)) paragrafo(frase, blocchi);
}

void margineDiFase(const dossier::Fascicolo& f, Blocchi& blocchi) {
    const Margine& margine = *f.margine;
    tables::Prospetto fasi = tables::prospettoMargine(margine);
    conMotiviBrevi(f.parete, fasi);
    parte(
        traduttore(
            "F divide la tangente dell'angolo di attrito e la coesione di tutti gli strati, "
            "dai due lati: è il divisore più grande con cui la fase ha ancora un equilibrio "
            "(Griffiths, Lane, Slope stability analysis by finite elements, 1999). Nei "
            "calcoli del resto del documento il terreno ha tutta la sua resistenza. F non "
            "riduce tiranti, puntoni e vincoli: il calcolo li prende con resistenza senza limite. "
            "Passiva: la pressione del terreno davanti alla paratia sotto lo scavo, in "
            "percentuale della sua resistenza passiva. Al limite: le profondità in cui la "
            "usa tutta. Piede: il suo spostamento, positivo verso lo scavo."),
        std::move(fasi), blocchi);
    paragrafo(riempito(traduttore(
                           "Sotto %1 il programma classifica F «pericolo»: è %3 dell'insieme M2 "
                           "(EN 1997-1:2004, tabella A.4; NTC 2018, tabella 6.2.II). Sotto %2 lo "
                           "classifica «da vedere»: è un consiglio di questo programma, di nessuna "
                           "norma. Quale sicurezza è richiesta lo decide la norma del progetto."),
                       {base::testoDecimali(safety::riduzionePericolosa, 2),
                        base::testoDecimali(safety::riduzioneDaVedere, 2), "γφ' = γc'"}),
              blocchi, Stile::nota);
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
    verdetto(f, blocchi);
    margineDiFase(f, blocchi);
    // The verdict has said all that could be said of other meshes and of the report.
    if (!margine.sta() && f.doppi.empty()) return;
    // Formulas stay on a line.
    parte(riempito(traduttore(
                       "I massimi di tutte le fasi con i segmenti del progetto, con il doppio e "
                       "con il quadruplo: a, b, c. Errore: %1. Ordine: %2, la potenza del passo "
                       "con cui l'errore diminuisce; 2 è quello delle differenze finite, 1 quello "
                       "di un piede incastrato. Scavo, falda, strati e tiranti contano dal nodo "
                       "più vicino, che cambia da una maglia all'altra: l'ordine vero può restarne "
                       "mascherato. Nelle due maglie più fini i vincoli sono rigidi; le molle che "
                       "ne fanno le veci nel calcolo cedono con un passo piccolo."),
                   {"|a\u00a0-\u00a0c|\u00a0/\u00a0c",
                    "log2((a\u00a0-\u00a0b)\u00a0/\u00a0(b\u00a0-\u00a0c))"}),
          prospettoErroreMaglia(margine), blocchi);
    if (margine.maglia) paragrafo(soglieErroreMaglia(), blocchi, Stile::nota);
    if (auto usi = prospettoUsiMaglia(margine); !usi.righe.empty()) {
        tavola(std::move(usi), blocchi);
        paragrafo(soglieUsiMaglia(), blocchi, Stile::nota);
    }
    avvisaMaglia(margine, blocchi);
    parte(traduttore("I massimi dell'equilibrio dei nodi accanto a quelli della relazione, fase "
                     "per fase; la relazione tronca i numeri alla seconda cifra decimale."),
          statica(f), blocchi);
}

}  // namespace korven::report
