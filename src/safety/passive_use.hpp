#pragma once

#include <optional>
#include <vector>

#include "equilibrium/limit_parts.hpp"
#include "equilibrium/staged_equilibrium.hpp"

namespace korven::safety {

/// How much of what the soil in front of the wall can give is used in one stage.
struct UsoPassiva {
    /// Sum of the pressure below the excavation over the sum of its passive limit, 0 to 1; nothing
    /// where the limit is 0, as with an excavation below the toe, or where the soil in front pulls,
    /// as with a negative stress.
    std::optional<double> quota;
    std::vector<equilibrium::Tratto> alLimite;  ///< where it is at the limit, from the top down
};

/// @param fase   a stage in equilibrium
/// @param scavo  depth of its excavation [m]
[[nodiscard]] UsoPassiva usoPassiva(const equilibrium::ProblemaFase& problema,
                                    const equilibrium::FaseEquilibrio& fase, double scavo);

}  // namespace korven::safety
