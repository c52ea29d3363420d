#pragma once

#include "base/table.hpp"

namespace korven::analysis {

/// Indices that the arrays of a run hold, 0 to 500; index 0 is not used.
inline constexpr int capacitaNodi = 500;

/// One double a node, node 1 at the wall top.
using VettoreNodi = base::Tabella<double, capacitaNodi>;

/// Depth of node i [m], (i - 1) passoNodi. This very product everywhere, since depths are compared
/// exactly: with another rounding a node would change sides of an excavation or a layer.
[[nodiscard]] constexpr double zNodo(int i, double passoNodi) { return (i - 1) * passoNodi; }

/// Starts a search for the smallest signed value, negated one for the largest: beyond all moments
/// and shears of a wall.
inline constexpr double oltreOgniValore = 1e30;

}  // namespace korven::analysis
