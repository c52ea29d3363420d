#pragma once

#include "analysis/limit_pressures.hpp"
#include "analysis/result_file.hpp"
#include "project/project_data.hpp"

namespace korven::results {

/// Strength of the layer that a depth belongs to.
struct Resistenza {
    double phi = 0;  ///< friction angle [rad]
    double c = 0;    ///< cohesion [t/m2]
};

/// The deepest layer with profStrato[j - 1] <= z <= profStrato[j] counts, the last one reaching
/// 100 m deeper, so that a node on a boundary belongs to the lower layer. Zeros where there is
/// none. It is worked out from the project alone, so that a diagram is the same whether the results
/// were computed just now or long ago.
[[nodiscard]] Resistenza resistenzaNodo(const project::DatiProgetto& dati, double z);

/// Soil pressures on both sides of a node [t/m2]: positive uphill, negative downhill.
struct PressioniNodo {
    analysis::PressioniLimite limitiM, limitiV;
    double pm = 0;  ///< at work uphill: sigma k0 + Eh y, held between the limits
    double pv = 0;  ///< at work downhill
};

/// The pressures of node i of a stage, from its stored results.
/// @param metodoSpinte  as a reading of the result file leaves it
[[nodiscard]] PressioniNodo pressioniNodo(const analysis::RisultatiFase& fase, int i,
                                          double metodoSpinte, const Resistenza& terreno);

}  // namespace korven::results
