#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "review/project_review.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::review {

using project::DatiProgetto;

inline Osservazioni osservazioni(const DatiProgetto& dati, const char* nSeg = "50") {
    analysis::contenutoNSeg = nSeg;
    auto trovate = esaminaProgetto(dati);
    analysis::contenutoNSeg.reset();
    return trovate;
}

// The lines of a review, "! " in front of what prevents a run.
inline std::vector<std::string> righe(const DatiProgetto& dati, const char* nSeg = "50") {
    std::vector<std::string> testo;
    for (const auto& r : osservazioni(dati, nSeg))
        testo.push_back((r.impedisce() ? "! " : "") + r.testo);
    return testo;
}

// Those of some codes alone, where a project is odd in other ways too.
inline std::vector<std::string> righeDi(const DatiProgetto& dati,
                                        const std::set<std::string_view>& codici) {
    std::vector<std::string> testo;
    for (const auto& r : osservazioni(dati))
        if (codici.contains(r.codice)) testo.push_back((r.impedisce() ? "! " : "") + r.testo);
    return testo;
}

using Modifica = std::function<void(DatiProgetto&)>;

inline DatiProgetto conModifica(const Modifica& modifica) {
    DatiProgetto d = test::progettoSemplice();
    modifica(d);
    return d;
}

struct Caso {
    Modifica modifica;
    std::vector<std::string> atteso;
};

inline void aspetta(const std::vector<Caso>& casi) {
    for (const auto& caso : casi) EXPECT_EQ(righe(conModifica(caso.modifica)), caso.atteso);
}

// What a review says can't be computed, a run must refuse; what it says can, must run.
inline bool laCorsaRiesce(const DatiProgetto& dati) {
    test::Banco banco(dati, 20);
    try {
        banco.calcola();
    } catch (const base::ErroreIndice&) {
        return false;
    }
    return !analysis::erroreCalcolo;
}

}  // namespace korven::review
