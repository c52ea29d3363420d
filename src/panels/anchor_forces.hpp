#pragma once

#include <optional>
#include <string>
#include <vector>

#include "live/live_project.hpp"
#include "masks/grid_model.hpp"

namespace korven::panels {

/// What one anchor does in one stage.
struct TiroInFase {
    double scavo = 0;            ///< depth of the excavation [m]
    std::optional<double> tiro;  ///< per metre of wall [kN], tension positive
    bool massimo = false;        ///< largest in size of all, and not 0
    /// "massimo", or in short why there is no force; translated, empty for most stages.
    std::string nota;
};

/// The force of an anchor in each stage of a wall, by the equilibrium solution.
struct TiriTirante {
    std::vector<TiroInFase> fasi;  ///< element 0 is stage 1
    /// Why the stages from one on have no force: one sentence, translated; empty where all stand.
    std::string perche;
};

/// @param tirante  row of the anchor in the project, from 1; one that there is not is in place in
///                 no stage
[[nodiscard]] TiriTirante tiriDelTirante(const live::PareteViva& parete, int tirante);

/// The same of a row of the open table of anchors: no stage for a row without data, and while the
/// rows that are typed could not be confirmed, which `perche` then says.
/// @param vivo  the open project, which follows the table
[[nodiscard]] TiriTirante tiriDellaRiga(const live::ProgettoVivo& vivo,
                                        const masks::ModelloGriglia& griglia, int riga);

}  // namespace korven::panels
