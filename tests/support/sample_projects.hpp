#pragma once

#include "project/project_data.hpp"

namespace korven::test {

/// A small wall that computes: two layers, one anchor, two stages, typed stiffness.
inline project::DatiProgetto progettoSemplice() {
    project::DatiProgetto d;
    project::azzera(d);
    d.nStrati = 2;
    d.profStrato[1] = 4;
    d.gammaN[1] = 1.8;
    d.gammaSat[1] = 2;
    d.phiStrato[1] = 30;
    d.ksStrato[1] = 1500;
    d.descrStrato[1] = "1A Sabbia, limosa \"media\"";
    d.profStrato[2] = 20;
    d.gammaN[2] = 1.9;
    d.gammaSat[2] = 2.1;
    d.phiStrato[2] = 34;
    d.coesione[2] = 0.5;
    d.ksStrato[2] = 3000;
    d.descrStrato[2] = "2 Ghiaia";
    d.vincoloTesta = d.vincoloPiede = d.modoSpinte = d.modoKs = d.modoTensioni = 1;
    d.metodoSpinte = 1;
    d.metodoKs = 3;
    d.lunghezzaParatia = 12;
    d.rigidezzaEJ = 12000;
    d.sovraccMonte = 1;
    d.faldaMonte = 3;
    d.nTiranti = 1;
    d.profTirante[1] = 1.5;
    d.rigTirante[1] = 500;
    d.pretTirante[1] = 5;
    d.nFasi = 2;
    d.profFase[1] = 2;
    d.faldaFase[1] = 3;
    d.profFase[2] = 5;
    d.tirantiFase[2] = 1;
    d.faldaFase[2] = 5;
    d.faldaValle = 5;  // as a run leaves it
    d.titoli[1] = "Muro di prova";
    return d;
}

}  // namespace korven::test
