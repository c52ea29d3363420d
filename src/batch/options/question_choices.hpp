#pragma once

#include <optional>

namespace korven::batch {

/// What `lunghezza` is asked, as typed.
struct DomandaLunghezza {
    std::optional<double> riduzione;    ///< least strength reduction F
    std::optional<double> spostamento;  ///< largest displacement [m]
    bool resistenza = false;            ///< the checks of the section
    std::optional<double> finoA;        ///< longest wall [m]; nothing: twice the project's
    double passo = 0.1;                 ///< of the lengths [m]
};

/// What `bloccaggio` is asked, as typed.
struct DomandaBloccaggio {
    int tirante = 1;
    double forza = 0;  ///< [kN/m]
};

}  // namespace korven::batch
