#pragma once

#include "support/wall_builder.hpp"

namespace korven::test {

/// A wall whose first stage flips for ever between two states in 10 segments.
inline project::DatiProgetto progettoSenzaPace() {
    using project::DatiProgetto;
    return muro()
        .rigido(500)
        .strato({.fondo = 5, .gammaN = 1.67, .phi = 25, .ks = 3000})
        .con(&DatiProgetto::vincoloPiede, 2)
        .sovraccarico(1)
        .con(&DatiProgetto::momentoTesta, 5)
        .falda(2)
        .con(&DatiProgetto::faldaValle, 5)
        .tirante(2.8, 1000)
        .tirante(4.4, 1000, 1)
        .fase({.scavo = 6, .tiranti = 1})
        .dati();
}

}  // namespace korven::test
