#pragma once

#include "equilibrium/stage_problem.hpp"
#include "equilibrium/staged_equilibrium.hpp"

namespace korven::equilibrium {

/// Moments and shears of a stage from the balance of its nodes, from the top down, out of the
/// pressures, the anchors and the restraints that are set in `fase`. The shear of a node is that of
/// the pressure up to it; at a force on the node (an anchor, a restraint, the force at the top) it
/// has two values, and the larger in size is kept.
/// @param y  displacements of the nodes of the system [m]
void statica(const ProblemaFase& problema, const std::vector<double>& y, FaseEquilibrio& fase);

}  // namespace korven::equilibrium
