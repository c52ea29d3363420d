#include "workbook/sheets.hpp"

#include <cassert>
#include <filesystem>
#include <iterator>
#include <set>
#include <utility>

#include "base/translated_texts.hpp"
#include "tables/anchor_table.hpp"
#include "tables/input_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"
#include "tables/remark_table.hpp"
#include "tables/stage_table.hpp"
#include "workbook/anchor_sheet.hpp"
#include "workbook/check_sheet.hpp"
#include "workbook/node_sheets.hpp"
#include "workbook/project_sheet.hpp"
#include "workbook/side_columns.hpp"

namespace korven::workbook {

namespace {

using base::traduttore;
using dossier::Fascicolo;
using tables::Prospetto;

constexpr base::Gemelli nomi[] = {
    {"progetto", "project"}, {"dati", "input"},         {"fasi", "stages"},
    {"nodi", "nodes"},       {"inviluppo", "envelope"}, {"tiranti", "anchors"},
    {"verifiche", "checks"}, {"maglia", "mesh"},        {"osservazioni", "remarks"}};
constexpr std::size_t postoNodi = 3, postoInviluppo = 4;  // among them

Prospetto conTitolo(Prospetto p, const char* titolo) {
    p.titolo = traduttore(titolo);
    return p;
}

std::string piede(const dossier::Identita& sua) {
    std::string testo = std::filesystem::path(sua.file).filename().string();
    for (const std::string& parte : {sua.programma + " " + sua.versione,
                                     std::string(dossier::inBreve(sua.impronta)), sua.data})
        if (!parte.empty()) testo += (testo.empty() ? "" : " - ") + parte;
    return testo;
}

Foglio diParole(Prospetto p, std::string fonte = {}) {
    return {.nome = {},
            .prospetto = std::move(p),
            .fonte = std::move(fonte),
            .colonneFisse = 1,
            .aCapo = true};
}

// @param conLato  columns of depths of shears, which have two values at an anchor
Foglio diNumeri(Prospetto p, std::size_t colonneFisse = 1,
                const std::set<std::size_t>& conLato = {}) {
    return {.nome = {},
            .prospetto = conLati(std::move(p), conLato),
            .fonte = traduttore("Numeri della soluzione di equilibrio, per metro di paratia."),
            .colonneFisse = colonneFisse,
            .aCapo = false};
}

Prospetto maglia(const Fascicolo& f) {
    if (f.margine) return tables::prospettoMaglia(*f.margine);
    safety::Margine senza;
    senza.nSeg = f.parete.nSeg;
    Prospetto p = tables::prospettoMaglia(senza);
    p.note = {traduttore("Di questo progetto non c'è un margine.")};
    return p;
}

std::vector<Foglio> tutti(const Fascicolo& f) {
    std::vector<Foglio> fatti = {
        diParole(conTitolo(tables::prospettoDati(f.scritti, f.parete), "Dati"),
                 traduttore("Dati come sono scritti e come il calcolo li usa.")),
        diNumeri(tables::prospettoFasi(f.parete), 1, {8}),
        diNumeri(prospettoNodiFasi(f), 3),
        diNumeri(conTitolo(tables::prospettoInviluppo(f.parete), "Inviluppo"), 2),
        diNumeri(prospettoTiranti(f)),
        diNumeri(prospettoVerifiche(f), 1, {5}),
        diNumeri(maglia(f)),
        diParole(tables::prospettoOsservazioni(f.osservazioni))};
    fatti.insert(fatti.begin(), diParole(prospettoProgetto(f, fatti)));
    assert(fatti.size() == std::size(nomi));
    for (std::size_t i = 0; i < fatti.size(); ++i) fatti[i].nome = nomi[i];
    return fatti;
}

}  // namespace

std::span<const base::Gemelli> nomiFogli() { return nomi; }

CartellaFogli fogli(const Fascicolo& f) {
    CartellaFogli cartella{.titolo = std::filesystem::path(f.identita.file).filename().string(),
                           .piede = piede(f.identita),
                           .data = f.identita.data,
                           .grafici = traduttore("Grafici"),
                           .fogli = tutti(f),
                           .diagrammi = {}};
    aggiungiGraficiInviluppo(f, postoInviluppo, cartella);
    aggiungiGraficiFasi(f, postoNodi, cartella);
    return cartella;
}

}  // namespace korven::workbook
