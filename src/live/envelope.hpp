#pragma once

#include <vector>

#include "live/wall.hpp"

namespace korven::live {

/// Smallest and largest value at each node, node 1 in element 0.
struct Fascia {
    std::vector<double> minimo, massimo;
};

/// The envelopes over all stages that stand; empty where none does. Units and signs are those of
/// `equilibrium::FaseEquilibrio`.
struct Inviluppo {
    Fascia y, momento;
    Fascia taglio;                    ///< of both sides of each node
    Fascia taglioSopra, taglioSotto;  ///< of the values just above and just below the nodes
    /// Net pressure on the wall: soil of both sides, water and the constant pressure.
    Fascia pressione;
    std::vector<double> tiri;  ///< largest force of each anchor, element 0 is anchor 1
};

[[nodiscard]] Inviluppo inviluppo(const PareteViva& parete);

/// Net pressure on a node of a stage [t/m2], element i is node i + 1.
[[nodiscard]] double pressioneNetta(const equilibrium::FaseEquilibrio& fase, std::size_t i);

}  // namespace korven::live
