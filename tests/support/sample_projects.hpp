#pragma once

#include "support/wall_builder.hpp"

namespace korven::test {

/// A small wall that computes: two layers, one anchor, two stages, typed stiffness.
inline project::DatiProgetto progettoSemplice() {
    return muro()
        .titolo(1, "Muro di prova")
        .lungo(12)
        .rigido(12000)
        .strato({.fondo = 4, .descrizione = "1A Sabbia, limosa \"media\""})
        .strato({.fondo = 20,
                 .gammaN = 1.9,
                 .gammaSat = 2.1,
                 .phi = 34,
                 .coesione = 0.5,
                 .ks = 3000,
                 .descrizione = "2 Ghiaia"})
        .sovraccarico(1)
        .falda(3)
        .tirante(1.5, 500, 5)
        .fase({.scavo = 2, .falda = 3})
        .fase({.scavo = 5, .tiranti = 1, .falda = 5})
        .con(&project::DatiProgetto::faldaValle, 5)  // as a run leaves it
        .dati();
}

/// A free wall of 10 m in the air: one layer without weight and without springs, no water, no
/// anchor, one stage without excavation.
inline project::DatiProgetto muroNudo() {
    return muro().strato({.gammaN = 0, .gammaSat = 0, .ks = 0}).dati();
}

/// A wall in soil that stays elastic whatever the loads: equal on both sides, no excavation, under
/// a surcharge so large that no limit is ever reached. `ks` on each side.
inline project::DatiProgetto muroElastico(double ks) {
    return muro()
        .strato({.gammaN = 0, .gammaSat = 0, .coesione = 1e6, .ks = ks})
        .sovraccarico(1e6)
        .con(&project::DatiProgetto::modoSpinte, valore(project::ModoSpinte::comeMonte))
        .con(&project::DatiProgetto::modoKs, valore(project::ModoKs::comeMonte))
        .dati();
}

}  // namespace korven::test
