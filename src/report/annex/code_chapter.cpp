#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "factors/words.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/table_pieces.hpp"
#include "tables/combination_tables.hpp"

namespace korven::report {

using base::traduttore;
using document::Stile;
using factors::Combinazioni;

namespace {

void parte(tables::Prospetto prospetto, Blocchi& blocchi, const std::string& spiegazione = {}) {
    if (prospetto.righe.empty()) return;
    blocchi.emplace_back(document::Titolo{2, std::exchange(prospetto.titolo, {})});
    if (!spiegazione.empty()) paragrafo(spiegazione, blocchi);
    tavola(std::move(prospetto), blocchi);
}

void fonti(const Combinazioni& tutte, Blocchi& blocchi) {
    blocchi.emplace_back(document::Titolo{2, traduttore("Fonti dei coefficienti")});
    paragrafo(
        base::riempito(
            traduttore("I numeri e le fonti stanno nel file %1. Quelli consegnati con il programma "
                       "sono scritti senza il testo della norma alla mano: prima di usarli si "
                       "confrontino con la norma e con l'allegato nazionale."),
            {tutte.norma.file}),
        blocchi, Stile::rilievo);
    for (const factors::EsitoCombinazione& e : tutte.esiti) {
        tables::Prospetto p = tables::prospettoFonti(e.combinazione);
        p.titolo += ": " + e.combinazione.fonte;
        tavola(std::move(p), blocchi);
    }
}

}  // namespace

std::string titoloNorma(const dossier::Fascicolo& fascicolo) {
    return base::riempito(traduttore("Combinazioni della norma %1"),
                          {fascicolo.norma->norma.titolo});
}

void capitoloNorma(const Contesto& contesto, Blocchi& blocchi) {
    const dossier::Fascicolo& f = *contesto.fascicolo;
    const Combinazioni& tutte = *f.norma;
    paragrafo(factors::verdetto(tutte), blocchi,
              tutte.verificate() ? Stile::rilievo : Stile::pericolo);
    for (const factors::EsitoCombinazione& e : tutte.esiti)
        if (const std::string perche = caduta(e); !perche.empty())
            paragrafo(perche, blocchi, Stile::pericolo);
    paragrafo(parole(tutte.natura), blocchi);
    for (const std::string& nota : note(tutte, f.parete.dati))
        paragrafo(nota, blocchi, Stile::nota);
    parte(
        tables::prospettoFattori(tutte), blocchi,
        base::riempito(
            traduttore("%1, c', cu, il peso di volume %2 e la resistenza del terreno a valle "
                       "(Terra) sono divisi per il loro coefficiente; i sovraccarichi q, la forza "
                       "H e il momento M in testa e gli effetti sono moltiplicati per il loro. "
                       "Scavo imprevisto: il maggiore di tutte le fasi."),
            {"tan φ", "γ"}));
    parte(tables::prospettoEffetti(tutte), blocchi);
    parte(tables::prospettoVerifiche(tutte), blocchi);
    parte(tables::prospettoTiri(tutte, f.parete.dati), blocchi);
    fonti(tutte, blocchi);
}

}  // namespace korven::report
