#pragma once

#include "project/project_data.hpp"
#include "support/wall_builder.hpp"

namespace korven::test {

/// A wall with rows in all tables, of which studies name fields.
inline const project::DatiProgetto& muroDiStudio() {
    static const project::DatiProgetto dati = muro()
                                                  .lungo(12)
                                                  .rigido(12000)
                                                  .strato({.fondo = 4, .descrizione = "1 Sabbia"})
                                                  .strato({.fondo = 20, .descrizione = "2 Ghiaia"})
                                                  .tirante(1.5, 500, 5)
                                                  .fase({.scavo = 2})
                                                  .fase({.scavo = 5, .tiranti = 1})
                                                  .dati();
    return dati;
}

}  // namespace korven::test
