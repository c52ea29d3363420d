#pragma once

#include <memory>

#include "analysis/run_arrays.hpp"

namespace korven::test {

/// The arrays of a run as they stand when its first stage begins, for tests that drive single steps
/// of the iteration.
inline std::unique_ptr<analysis::ArraysCorsa> corsaNuova(const project::DatiProgetto& dati,
                                                         int nSeg) {
    auto corsa = std::make_unique<analysis::ArraysCorsa>();
    corsa->nSeg = nSeg;
    corsa->nNodi = nSeg + 1;
    corsa->passoNodi = dati.lunghezzaParatia / nSeg;
    corsa->vincolo = analysis::vincoli(dati);
    for (int i = 1; i <= corsa->nNodi; ++i) corsa->EJNodo[i] = dati.rigidezzaEJ;
    return corsa;
}

/// A free wall of 10 m in the air: one layer without weight and without springs, no water, no
/// anchor, one stage without excavation.
inline project::DatiProgetto muroNudo() {
    project::DatiProgetto d;
    project::azzera(d);
    d.nStrati = 1;
    d.profStrato[1] = 20;
    d.phiStrato[1] = 30;
    d.vincoloTesta = d.vincoloPiede = d.modoSpinte = d.modoKs = d.modoTensioni = 1;
    d.metodoSpinte = 1;
    d.metodoKs = 3;
    d.lunghezzaParatia = 10;
    d.rigidezzaEJ = 10000;
    d.faldaMonte = 50;
    d.nFasi = 1;
    d.faldaFase[1] = 50;
    return d;
}

/// A wall in soil that stays elastic whatever the loads: equal on both sides, no excavation, under
/// a surcharge so large that no limit is ever reached. `ks` on each side.
inline project::DatiProgetto muroElastico(double ks) {
    auto d = muroNudo();
    d.sovraccMonte = 1e6;
    d.coesione[1] = 1e6;
    d.modoSpinte = d.modoKs = 2;
    d.ksStrato[1] = ks;
    return d;
}

/// Adds an anchor below those already there.
inline void aggiungiTirante(project::DatiProgetto& d, double profondita, double rigidezza,
                            double pretensione, double tipo) {
    const int a = ++d.nTiranti;
    d.profTirante[a] = profondita;
    d.rigTirante[a] = rigidezza;
    d.pretTirante[a] = pretensione;
    d.tipoTirante[a] = tipo;
}

/// Repeats stage 1 with another number of anchors; the caller changes the rest.
inline int aggiungiFase(project::DatiProgetto& d, double tiranti) {
    const int k = ++d.nFasi;
    d.profFase[k] = d.profFase[1];
    d.faldaFase[k] = d.faldaFase[1];
    d.sovraccFase[k] = d.sovraccFase[1];
    d.tirantiFase[k] = tiranti;
    return k;
}

}  // namespace korven::test
