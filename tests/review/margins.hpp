#pragma once

#include <string>
#include <vector>

#include "review/result_checks.hpp"
#include "support/wall_builder.hpp"

// Margins written by hand, so that what is told of them has known numbers.

namespace korven::review {

/// A wall of 10 m with the given stages; their excavations are those of the margin.
inline project::DatiProgetto paratia(const std::vector<test::Fase>& fasi) {
    auto muro = test::muro();
    for (const auto& fase : fasi) muro.fase(fase);
    return muro.dati();
}

/// All stages in equilibrium, far from any limit and with no number yet.
inline safety::Margine margineSano(const project::DatiProgetto& dati) {
    safety::Margine m;
    m.nSeg = 50;
    for (int k = 1; k <= dati.nFasi; ++k) {
        safety::MargineFase f;
        f.fase = k;
        f.scavo = dati.profFase[k];
        f.esito = equilibrium::EsitoFase::equilibrio;
        f.riduzione.oltre = true;
        m.fasi.push_back(f);
    }
    return m;
}

/// A force of the next anchor of stage k [t]: in truth, and as the report's shear counts it.
inline void conTiro(safety::Margine& m, int k, double statica, double relazione,
                    bool nelTaglio = true) {
    auto& tiri = m.fasi[static_cast<std::size_t>(k) - 1].confronto.tiri;
    tiri.push_back(
        {static_cast<int>(tiri.size()) + 1, statica, results::TiroRelazione{relazione, nelTaglio}});
}

/// Lines with code and weight in front, as "[pericolo] meccanismo: ...".
inline std::vector<std::string> righe(const Osservazioni& osservazioni) {
    std::vector<std::string> testo;
    for (const auto& o : osservazioni)
        testo.push_back("[" + std::string(parola(o.peso)) + "] " + std::string(o.codice) + ": " +
                        o.testo);
    return testo;
}

using Righe = std::vector<std::string>;

}  // namespace korven::review
