#pragma once

#include <vector>

#include "equilibrium/verdict.hpp"

namespace korven::equilibrium {

/// From one depth to another [m].
struct Tratto {
    double da = 0, a = 0;
    bool operator==(const Tratto&) const = default;
};

/// What a mechanism has brought to its limit, from the top down. A side without soil is at none.
struct PartiAlLimite {
    std::vector<Tratto> monteAttivo, montePassivo;
    std::vector<Tratto> valleAttivo, vallePassivo;
    std::vector<int> tirantiLenti;  ///< slack anchors in place, counted from 1
};

[[nodiscard]] PartiAlLimite partiAlLimite(const ProblemaFase& problema, const Meccanismo& moto);

}  // namespace korven::equilibrium
