#pragma once

#include "analysis/run_arrays.hpp"

namespace korven::analysis {

/// Largest difference between two iterations at which a displacement counts as unchanged [m].
inline constexpr double tolleranzaSpostamento = 0.00000001;

/// Extremes of one solve.
struct EstremiIterazione {
    double yMax = 0;                     ///< largest absolute displacement [m]
    double mMax = 0;                     ///< largest absolute moment [t m]
    double mMaxFase = -oltreOgniValore;  ///< largest signed moment [t m]
    double mMinFase = oltreOgniValore;   ///< smallest signed moment [t m]
};

/// Classifies each side of each node from the displacements of the last solve and sums up what the
/// soil lays on the wall: `pNodo` + `kNodo` y. On each side the elastic line starts from the
/// at-rest pressure at zero displacement; a trial pressure beyond a limit becomes that limit,
/// without a spring. A trial pressure exactly at a limit counts as elastic. Nothing of a plastic
/// excursion is remembered.
void classificaNodi(const project::DatiProgetto& dati, ArraysCorsa& corsa);

/// Adds the anchors in place: each acts as a pressure -F f on its node, with
///
///     F = pretTirante + rigTirante (y - yTirante),  f = 1 / passoNodi, twice that at an end node
///
/// where F is not below 0 or `tipoTirante` is 1; a tension-only anchor that would be compressed
/// adds nothing in this iteration and may come back in a later one. An anchor beyond the wall has
/// no effect.
void applicaTiranti(const project::DatiProgetto& dati, ArraysCorsa& corsa);

/// Clears, lays the restraints over the springs and writes the system of one iteration into
/// `matriceA` and `termineB`.
///
/// With a fixed toe the system has one node more, one `passoNodi` below the toe. Its two equations
/// and unknowns lie outside the cells that are cleared before an assembly, so they start from what
/// the solver left there in the iteration before.
///
/// @return nodes of the system; it has twice as many equations
[[nodiscard]] int preparaSistema(const project::DatiProgetto& dati, ArraysCorsa& corsa);

/// Prepares and solves one iteration; then displacements, shears and moments. The moment shown at a
/// fixed toe is extrapolated from the moments of the iteration before.
///
/// @return false if the system is singular; the arrays are then of no use
[[nodiscard]] bool risolviIterazione(const project::DatiProgetto& dati, ArraysCorsa& corsa);

/// Extremes of displacement and moment over the wall's nodes.
[[nodiscard]] EstremiIterazione estremiIterazione(const ArraysCorsa& corsa);

/// Compares the displacements with those of the iteration before, node by node and in metres, and
/// puts them in their place. Nothing else is tested: no force, no moment, no state.
[[nodiscard]] bool convergenza(ArraysCorsa& corsa);

}  // namespace korven::analysis
