#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "live/wall.hpp"
#include "project/units.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

/// The largest or the smallest value of a quantity, and where it is.
struct Picco {
    double valore = 0;
    std::size_t nodo = 0;  ///< counted from 0
    int fase = 0;
    equilibrium::Lato lato = equilibrium::Lato::unico;
};

/// What a stage has at each node and how it is told.
struct GrandezzaFase {
    /// Just above and just below the node: shear has two values at an anchor.
    std::vector<double> equilibrium::FaseEquilibrio::*sopra, equilibrium::FaseEquilibrio::*sotto;
    const char* titolo;  ///< Italian key
    const project::Unita& unita;
    tables::Cella (*cella)(double);
};

/// Displacement, moment, shear.
[[nodiscard]] const std::array<GrandezzaFase, 3>& grandezze();

/// Of both sides of the nodes; of equal values that of the first stage, and in it the uppermost.
/// @param fase   one that stands, counted from 1; 0: all that stand
/// @param segno  1: the largest, -1: the smallest
/// @pre some stage stands: asserted
[[nodiscard]] Picco picco(const live::PareteViva& parete, int fase, const GrandezzaFase& grandezza,
                          int segno);

/// The nodes of all peaks.
[[nodiscard]] std::vector<std::size_t> nodiDeiPicchi(const live::PareteViva& parete, int fase);

/// A row a quantity: largest and smallest value, depths, and of all stages the stage.
[[nodiscard]] tables::Prospetto prospettoPicchi(const live::PareteViva& parete, int fase);

}  // namespace korven::report
