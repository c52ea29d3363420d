#pragma once

#include <cstddef>
#include <vector>

#include "equilibrium/staged_equilibrium.hpp"

namespace korven::equilibrium {

/// Which value of a node: at an anchor the shear has one just above and another just below.
enum class Lato { unico, sopra, sotto };

/// The value of a curve that is largest in size, with its sign, and where it is.
struct Estremo {
    double valore = 0;
    double z = 0;  ///< depth [m]
    int fase = 0;  ///< 0: of no stage
    Lato lato = Lato::unico;
};

/// Extremes over stages in equilibrium; what is not, is passed over.
struct Estremi {
    Estremo spostamento;     ///< largest in size [m]
    Estremo momentoMassimo;  ///< largest, not below 0 [t m]
    Estremo momentoMinimo;   ///< smallest, not above 0 [t m]
    Estremo taglio;          ///< largest in size of both sides of the nodes [t]
    Estremo tiro;            ///< largest force of an anchor [t]; z is 0

    /// The moment that is larger in size.
    [[nodiscard]] const Estremo& momento() const {
        return momentoMassimo.valore >= -momentoMinimo.valore ? momentoMassimo : momentoMinimo;
    }
};

/// The side of a node that `valore` is on, one of the two shears of the node.
[[nodiscard]] Lato lato(const FaseEquilibrio& fase, std::size_t nodo, double valore);

/// Takes one stage in.
/// @param h  distance of the nodes [m]
void aggiungi(const FaseEquilibrio& fase, double h, Estremi& estremi);

/// Of one stage.
[[nodiscard]] Estremi estremi(const FaseEquilibrio& fase, double h);

/// Of all.
[[nodiscard]] Estremi estremi(const std::vector<FaseEquilibrio>& fasi, double h);

}  // namespace korven::equilibrium
