#pragma once

#include <stdexcept>
#include <string>

#include "comparison/comparison.hpp"
#include "support/sample_projects.hpp"

namespace korven::comparison::test {

inline Muro muro(const project::DatiProgetto& dati, int nSeg = 20,
                 const std::string& nome = "muro.kvd") {
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    return muroCalcolato(
        nome, {.scritti = dati, .usati = dati, .nSeg = nSeg, .identita = {}, .sulProgetto = {}},
        osservatore);
}

inline Confronto confronto(const project::DatiProgetto& prima, const project::DatiProgetto& dopo,
                           int nSeg = 20) {
    return confronta(muro(prima, nSeg, "prima.kvd"), muro(dopo, nSeg, "dopo.kvd"));
}

/// The one result of that name, stage and anchor.
inline const RisultatoConfrontato& risultato(const Confronto& c, std::string_view codice,
                                             int fase = 0, int tirante = 0) {
    for (const RisultatoConfrontato& r : c.risultati)
        if (r.codice == codice && r.fase == fase && r.tirante == tirante) return r;
    throw std::out_of_range(std::string(codice));
}

inline bool ha(const Confronto& c, std::string_view codice, int fase = 0, int tirante = 0) {
    for (const RisultatoConfrontato& r : c.risultati)
        if (r.codice == codice && r.fase == fase && r.tirante == tirante) return true;
    return false;
}

/// A beam of 10 m on two hinges under a constant pressure [t/m2], in soil that does nothing.
inline project::DatiProgetto trave(double pressione) {
    auto dati = korven::test::muroNudo();
    dati.vincoloTesta = 2;
    dati.vincoloPiede = 2;
    dati.pressioneOrizz = pressione;
    return dati;
}

/// The sample wall with an excavation that its toe does not reach below: it falls in stage 1.
inline project::DatiProgetto cade() {
    auto dati = korven::test::progettoSemplice();
    dati.profFase[1] = 11.9;  // of 12 m, before the anchor is there
    return dati;
}

}  // namespace korven::comparison::test
