#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "report/annex/chapters.hpp"

// A chapter of the annex as a test looks at it: its tables by title, its sentences as one text.

namespace korven::test {

using Capitolo = void (*)(const report::Contesto&, report::Blocchi&);

/// @param righe  rows of a table of nodes, at most
inline report::Contesto contesto(const project::DatiProgetto& dati, int righe = 51) {
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    auto f = dossier::fascicolo(
        {.scritti = dati, .usati = dati, .nSeg = 40, .identita = {}, .sulProgetto = {}},
        osservatore);
    return {std::make_shared<const dossier::Fascicolo>(std::move(f)), {.righe = righe}};
}

inline report::Blocchi blocchi(Capitolo capitolo, const report::Contesto& contesto) {
    report::Blocchi tutti;
    capitolo(contesto, tutti);
    return tutti;
}

/// All blocks of one kind, in their order.
template <class T>
std::vector<T> tutti(const report::Blocchi& blocchi) {
    std::vector<T> trovati;
    for (const auto& blocco : blocchi)
        if (const T* t = std::get_if<T>(&blocco)) trovati.push_back(*t);
    return trovati;
}

/// The n-th table of a title, counted from 1; one without rows where there is none, with a failure.
inline tables::Prospetto tavola(const report::Blocchi& blocchi, const std::string& titolo,
                                int n = 1) {
    for (const auto& t : tutti<document::Tavola>(blocchi))
        if (t.prospetto.titolo == titolo && --n == 0) return t.prospetto;
    ADD_FAILURE() << "no table " << titolo;
    return {};
}

inline bool haTavola(const report::Blocchi& blocchi, const std::string& titolo) {
    for (const auto& t : tutti<document::Tavola>(blocchi))
        if (t.prospetto.titolo == titolo) return true;
    return false;
}

/// Headings and paragraphs, a line each.
inline std::string testo(const report::Blocchi& blocchi) {
    std::string righe;
    for (const auto& blocco : blocchi) {
        if (const auto* p = std::get_if<document::Paragrafo>(&blocco)) righe += p->testo + "\n";
        if (const auto* t = std::get_if<document::Titolo>(&blocco)) righe += t->testo + "\n";
    }
    return righe;
}

/// The number of a cell; a failure where it has none.
inline double numero(const tables::Prospetto& p, std::size_t riga, std::size_t colonna) {
    if (riga >= p.righe.size() || colonna >= p.righe[riga].size()) {
        ADD_FAILURE() << p.titolo << " has no cell " << riga << ", " << colonna;
        return 0;
    }
    const auto& cella = p.righe[riga][colonna];
    EXPECT_TRUE(cella.numero) << p.titolo << ": " << cella.testo;
    return cella.numero.value_or(0);
}

/// The row that a word begins.
inline std::vector<tables::Cella> riga(const tables::Prospetto& p, const std::string& nome) {
    for (const auto& r : p.righe)
        if (r.front().testo == nome) return r;
    ADD_FAILURE() << p.titolo << " has no row " << nome;
    return std::vector<tables::Cella>(p.colonne.size());
}

}  // namespace korven::test
