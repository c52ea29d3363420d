#pragma once

#include <vector>

#include "analysis/layer_soil.hpp"
#include "factors/load_factors.hpp"
#include "project/project_data.hpp"

namespace korven::factors {

/// A wall with the factors of a combination on what acts and on what resists, but for the factor on
/// effects, which comes after the calculation.
struct PareteFattorizzata {
    project::DatiProgetto dati;    ///< with the loads, weights and excavations of the combination
    analysis::SuoloStrati strati;  ///< with its strengths
    FattoriCarichi carichi;        ///< that were applied
    std::vector<double> inPiu;     ///< unplanned excavation [m], element 0 is stage 1
};

/// Strengths go into active and passive limits alone: at-rest coefficients and moduli stay those of
/// the whole strength. `coesione` of the project is undrained strength where stresses are total or
/// the layer has no friction, else c'. Water levels, the constant pressure, anchors and stiffnesses
/// stay as they are.
/// @pre `dati` is a project that nothing refuses (`analysis::avviaCalcolo`)
[[nodiscard]] PareteFattorizzata fattorizza(const project::DatiProgetto& dati,
                                            const Fattori& fattori, const NaturaCarichi& natura);

/// True if `coesione` of layer j is undrained strength.
[[nodiscard]] bool nonDrenato(const project::DatiProgetto& dati, int j);

}  // namespace korven::factors
