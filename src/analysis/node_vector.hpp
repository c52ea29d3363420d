#pragma once

#include "base/table.hpp"

namespace korven::analysis {

/// Indices that the arrays of a run hold, 0 to 500; index 0 is not used.
inline constexpr int capacitaNodi = 500;

/// One double a node, node 1 at the wall top.
using VettoreNodi = base::Tabella<double, capacitaNodi>;

}  // namespace korven::analysis
