#pragma once

#include <optional>
#include <vector>

#include "equilibrium/stage_problem.hpp"

namespace korven::safety {

/// What the toe does in one stage.
struct MotoPiede {
    double spostamento = 0;  ///< of the toe [m]
    /// Of a fixed toe: its rotation as a share of the largest of the wall, 0 for a clamp that does
    /// not give. Nothing for any other, or where the wall nowhere turns.
    std::optional<double> cedimento;
};

/// A fixed toe is the node at the toe and one a step below it, each on a spring of 1E+11 t/m3: what
/// the two move against each other is the rotation of the clamp.
/// @param y  displacements of the nodes of the system [m], with a fixed toe one more than the
///           wall's
[[nodiscard]] MotoPiede motoPiede(const equilibrium::ProblemaFase& problema,
                                  const std::vector<double>& y);

}  // namespace korven::safety
