#pragma once

#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"

namespace korven::analysis {

/// The table of one stage, in the order of the columns of the result file. Units and signs
/// as in StatoSuolo.
struct RisultatiFase {
    VettoreNodi sigmaVv, Ehv, k0v, kav, kpv;
    VettoreNodi sigmaVm, Ehm, k0m, kam, kpm;
    VettoreNodi yNodo;        ///< [m]
    VettoreNodi momentoNodo;  ///< [t m]
    VettoreNodi taglioNodo;   ///< [t]; has no name in the column line of the file
};

/// The numbers of the last iteration at the wall's nodes. The node that a fixed toe adds to the
/// system is none of them; rows beyond the wall are 0.
[[nodiscard]] RisultatiFase risultatiFase(const ArraysCorsa& corsa);

}  // namespace korven::analysis
