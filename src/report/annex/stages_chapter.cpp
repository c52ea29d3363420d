#include <algorithm>
#include <string>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/annex_drawings.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/chosen_rows.hpp"
#include "report/annex/mechanism_tables.hpp"
#include "report/annex/peaks.hpp"
#include "report/annex/run_tables.hpp"
#include "report/annex/short_reasons.hpp"
#include "report/annex/stage_tables.hpp"
#include "report/annex/table_pieces.hpp"
#include "report/annex/twin_words.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"
#include "tables/stage_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using document::Stile;
using dossier::Fascicolo;
using tables::Prospetto;

namespace {

// How the numbers of the stages that stand are to be read.
void introduzione(const Fascicolo& f, int righe, Blocchi& blocchi) {
    paragrafo(
        riempito(
            traduttore("Di ogni fase c'è la soluzione di equilibrio: la paratia, divisa in %1 "
                       "segmenti di %2 m, è in equilibrio in ogni nodo con terreno, acqua, "
                       "tiranti, puntoni, vincoli e carichi. Un tirante o un puntone agisce dalla "
                       "fase che lo mette in opera e conta gli spostamenti da allora; il terreno "
                       "non ricorda le fasi precedenti."),
            {std::to_string(f.parete.nSeg),
             tables::cella(f.parete.h, 4, project::unita::metri).testo}),
        blocchi);
    paragrafo(
        traduttore("Valori per metro di paratia, profondità dalla testa. Spostamenti, "
                   "pressioni e forze sono positivi verso lo scavo; un momento positivo tende "
                   "la faccia verso lo scavo."),
        blocchi);
    paragrafo(fraseBilanci(f), blocchi);
    paragrafo(fraseSomme(f, righe), blocchi);
}

// What the drawing shows, for those who do not see it.
std::string descrizione(const Fascicolo& f, int fase) {
    std::string testo = tables::titoloFase(fase);
    std::string segno = base::duePunti();
    for (const auto& riga : prospettoPicchi(f.parete, fase).righe) {
        testo += segno + riga[0].testo + " " + riga[3].testo + " / " + riga[1].testo;
        segno = base::puntoEVirgola();
    }
    return testo + ".";
}

constexpr double altezzaMinima = 8.5;  // of curves that can still be read [cm]

document::Figura figura(const Contesto& contesto, int fase) {
    const auto f = contesto.fascicolo;
    const auto [larghezza, altezza] = drawings::formatoFase;
    return {riempito(traduttore("Fase %1: paratia, pressioni, spostamento, momento e taglio"),
                     {std::to_string(fase)}),
            descrizione(*f, fase),
            larghezza,
            altezza,
            [f, fase, larghezza = larghezza, altezza = altezza] {
                drawings::disegnaFase(f->parete, fase, larghezza, altezza);
            },
            altezzaMinima,
            [f, fase, larghezza = larghezza](double bassa) {
                drawings::disegnaFase(f->parete, fase, larghezza, bassa);
            }};
}

// A stage that does not stand: how it falls, with the limit pressures of a mechanism.
document::Figura figuraCaduta(const Contesto& contesto, int fase) {
    const auto f = contesto.fascicolo;
    const auto [larghezza, altezza] = drawings::formatoFase;
    const bool cade = f->limite && f->limite->fase == fase;
    const char* didascalia =
        cade ? "Fase %1: in rosso, ingrandito, come la paratia cade; accanto le pressioni al limite"
             : "Fase %1: la paratia senza equilibrio";
    const std::string descrizione =
        cade ? traduttore(
                   "La paratia con il terreno al limite, attivo o passivo, e il suo moto; "
                   "accanto le pressioni al limite dei due lati lungo la profondità.")
             : tables::perche(f->parete, fase);
    return {riempito(traduttore(didascalia), {std::to_string(fase)}), descrizione, larghezza,
            altezza, [f, fase, cade, larghezza = larghezza, altezza = altezza] {
                if (!cade) return drawings::disegnaFase(f->parete, fase, larghezza, altezza);
                drawings::PressioniLimite p;
                for (const dossier::NodoAlLimite& n : f->limite->nodi) {
                    p.monte.push_back(n.monte);
                    p.valle.push_back(n.valle);
                    p.acqua.push_back(n.acqua);
                }
                drawings::disegnaMeccanismo(f->parete, fase, p, larghezza, altezza);
            }};
}

// The number of a layer says enough: its name stands with the data.
void accorciaStrati(Prospetto& p) {
    for (auto& riga : p.righe)
        if (riga.back().ordine) riga.back() = tables::cella(static_cast<int>(*riga.back().ordine));
    p.colonne.back().numerica = true;
}

Prospetto nodi(const Contesto& contesto, int fase) {
    const live::PareteViva& parete = contesto.fascicolo->parete;
    Prospetto p = tables::prospettoNodi(parete, fase);
    accorciaStrati(p);
    sfoltisci(p, contesto.opzioni.righe, nodiDeiPicchi(parete, fase));
    return p;
}

void inEquilibrio(const Contesto& contesto, int fase, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    tavola(prospettoPicchi(f.parete, fase), blocchi);
    const auto i = static_cast<std::size_t>(fase) - 1;
    if (i < f.bilanci.size()) tavola(prospettoBilancio(f.parete.dati, f.bilanci[i]), blocchi);
    tavola(nodi(contesto, fase), blocchi);
    // They tell of all numbers of the stage. The page of its nodes has room for them, while that of
    // the balance is full where there are many anchors.
    paragrafo(frasePassi(f, fase), blocchi, Stile::nota);
    paragrafo(fraseDoppi(f, fase), blocchi, Stile::nota);
}

void alLimite(const Contesto& contesto, int fase, Blocchi& blocchi) {
    const auto& limite = contesto.fascicolo->limite;
    if (!limite || limite->fase != fase) return;
    paragrafo(fraseMeccanismo(*limite), blocchi);
    tavola(prospettoLimite(contesto.fascicolo->parete.dati, *limite), blocchi);
    Prospetto pressioni = prospettoPressioniLimite(*limite);
    sfoltisci(pressioni, contesto.opzioni.righe, {});
    tavola(std::move(pressioni), blocchi);
}

void unaFase(const Contesto& contesto, int fase, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    // With its drawing, made lower if need be, and the peaks below that.
    constexpr double postoFase = altezzaMinima + 5.8;  // [cm]
    blocchi.emplace_back(document::Titolo{2, tables::titoloFase(fase), postoFase});
    if (f.parete.fase(fase) == nullptr)
        paragrafo(inFrase(tables::perche(f.parete, fase)), blocchi, Stile::pericolo);
    tavola(prospettoCondizioni(f.parete.dati, fase), blocchi);
    if (f.parete.fase(fase) != nullptr) {
        blocchi.emplace_back(figura(contesto, fase));
        inEquilibrio(contesto, fase, blocchi);
    } else {
        blocchi.emplace_back(figuraCaduta(contesto, fase));
        alLimite(contesto, fase, blocchi);
    }
}

}  // namespace

void capitoloFasi(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    const int calcolate = static_cast<int>(f.parete.fasi.size());
    if (calcolate == 0) {
        paragrafo(tables::perche(f.parete, 1), blocchi, Stile::pericolo);
        return;
    }
    const bool qualcunaSta = f.parete.fasiInEquilibrio() > 0;
    if (qualcunaSta)
        introduzione(f, contesto.opzioni.righe, blocchi);
    else
        paragrafo(traduttore("Nessuna fase è in equilibrio: spostamenti, momenti e tagli non ci "
                             "sono. Della prima c'è come la paratia cade, se è un meccanismo. "
                             "Valori per metro di paratia, profondità dalla testa; pressioni e "
                             "forze sono positive verso lo scavo."),
                  blocchi);
    tables::Prospetto fasi = tables::prospettoFasi(f.parete);
    conMotiviBrevi(f.parete, fasi);
    tavola(std::move(fasi), blocchi);
    if (qualcunaSta) tavola(prospettoCorse(f), blocchi);
    for (int k = 1; k <= calcolate; ++k) unaFase(contesto, k, blocchi);
    const int tutte = std::clamp(f.parete.dati.nFasi, 0, project::massimoFasi);
    for (int k = calcolate + 1; k <= tutte; ++k) {
        blocchi.emplace_back(document::Titolo{2, tables::titoloFase(k)});
        paragrafo(inFrase(tables::perche(f.parete, k)), blocchi, Stile::pericolo);
    }
}

}  // namespace korven::report
