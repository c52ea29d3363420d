#pragma once

#include "equilibrium/stage_problem.hpp"
#include "equilibrium/staged_equilibrium.hpp"

namespace korven::equilibrium {

/// Moments and shears of a stage from the balance of its nodes, from the top down, out of the
/// pressures, the anchors and the restraints that are set in `fase`. The shear of a node is that of
/// the pressure up to it; where an anchor is on the node it has two values, just above and just
/// below:
///
///     taglioSotto = taglioSopra + force of the anchors on the node
///
/// The top has that below what acts on it, the toe that above its restraint.
/// @param y  displacements of the nodes of the system [m]
void statica(const ProblemaFase& problema, const std::vector<double>& y, FaseEquilibrio& fase);

/// The larger in size of the two shears of a node; of equal sizes that above.
[[nodiscard]] double maggiore(double sopra, double sotto);

}  // namespace korven::equilibrium
