#include <cstddef>
#include <numeric>
#include <string>
#include <vector>

#include "analysis/node_vector.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/chosen_rows.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/peaks.hpp"
#include "report/annex/table_pieces.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Fascicolo;
using dossier::LatoTerreno;
using equilibrium::FaseEquilibrio;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

// One side of a stage: its soil, and of a stage that stands what became of it.
struct Lato {
    const char* titolo;  ///< Italian key
    const std::vector<LatoTerreno>& terreno;
    std::size_t primo;           ///< first node that has soil
    const FaseEquilibrio* fase;  ///< nullptr: it does not stand
    std::vector<double> FaseEquilibrio::*pressione;
    analysis::StatoLato analysis::StatiNodo::*stato;
};

Prospetto vuoto(const Lato& lato) {
    Prospetto p{.titolo = traduttore(lato.titolo),
                .colonne = {simboli(unita::metri, "z"), simboli(unita::pressione, "σv"),
                            simboli(unita::pressione, "u"), simboli(unita::pressione, "σ"),
                            simboli(unita::pressione, "pa"), simboli(unita::pressione, "p0"),
                            simboli(unita::pressione, "pp"), simboli(unita::modulo, "ks")}};
    if (lato.fase == nullptr) return p;
    p.colonne.push_back(simboli(unita::spostamentoFine, "y"));
    p.colonne.push_back(simboli(unita::pressione, "p"));
    p.colonne.push_back(colonna("Stato"));
    return p;
}

// So fine that ks y is right to the digit of the pressures.
Cella spostamentoFine(double y) { return tables::cella(y, 5, unita::spostamentoFine); }

std::vector<Cella> riga(const Lato& lato, std::size_t i, double h) {
    const LatoTerreno& t = lato.terreno[i];
    const auto tensione = [](const std::optional<double>& valore) {
        return valore ? tables::pressione(*valore)
                      : tables::senza(traduttore("A valle vale la tensione di monte."));
    };
    std::vector<Cella> celle = {tables::profondita(analysis::zNodo(static_cast<int>(i) + 1, h)),
                                tensione(t.totale),
                                tensione(t.acqua),
                                tables::pressione(t.sigma),
                                tables::pressione(t.attivo),
                                tables::pressione(t.riposo),
                                tables::pressione(t.passivo),
                                tables::cella(t.ks, 1, unita::modulo)};
    if (lato.fase != nullptr) {
        celle.push_back(spostamentoFine(lato.fase->y[i]));
        celle.push_back(tables::pressione((lato.fase->*lato.pressione)[i]));
        celle.push_back(tables::parola(tables::nomeStato(lato.fase->stati[i].*lato.stato)));
    }
    return celle;
}

void tavolaLato(const Lato& lato, double h, const std::vector<std::size_t>& quali,
                Blocchi& blocchi) {
    Prospetto p = vuoto(lato);
    for (const std::size_t i : quali)
        if (i >= lato.primo) p.righe.push_back(riga(lato, i, h));
    if (!p.righe.empty()) tavola(std::move(p), blocchi);
}

void unaFase(const Contesto& contesto, const dossier::TerrenoFase& terreno, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    const FaseEquilibrio* fase = f.parete.fase(terreno.fase);
    blocchi.emplace_back(document::Titolo{2, tables::titoloFase(terreno.fase)});
    if (fase == nullptr)
        paragrafo(percheInBreve(f.parete, terreno.fase), blocchi, document::Stile::pericolo);
    const auto picchi =
        fase != nullptr ? nodiDeiPicchi(f.parete, terreno.fase) : std::vector<std::size_t>{};
    const auto quali = righeScelte(f.terreno.monte.size(), contesto.opzioni.righe, picchi);
    tavolaLato({"Terreno a monte", f.terreno.monte, 0, fase, &FaseEquilibrio::monte,
                &analysis::StatiNodo::monte},
               f.parete.h, quali, blocchi);
    tavolaLato({"Terreno a valle", terreno.valle, terreno.primo, fase, &FaseEquilibrio::valle,
                &analysis::StatiNodo::valle},
               f.parete.h, quali, blocchi);
}

}  // namespace

void capitoloNodiTerreno(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    if (f.terreno.fasi.empty()) {
        paragrafo(percheInBreve(f.parete, 1), blocchi, document::Stile::pericolo);
        return;
    }
    std::string frase = base::riempito(
        traduttore("Le molle di ogni fase, nodo per nodo, alle profondità della tabella dei suoi "
                   "nodi. I simboli sono quelli del capitolo %1."),
        {traduttore("Modello e ipotesi")});
    if (f.parete.fasiInEquilibrio() > 0)
        frase += " " + traduttore(
                           "Si rifà ogni riga così: p = p0 - ks y, con y in metri; se esce "
                           "dai limiti pa e pp, p è il limite.");
    if (!f.parete.sta())
        frase += " " + traduttore(
                           "Una fase senza equilibrio non ha spostamenti: di essa ci sono i "
                           "limiti pa e pp e il modulo, non la pressione p.");
    paragrafo(frase, blocchi);
    for (const auto& terreno : f.terreno.fasi) unaFase(contesto, terreno, blocchi);
}

}  // namespace korven::report
