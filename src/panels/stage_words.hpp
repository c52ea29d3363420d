#pragma once

#include <optional>
#include <string>

#include "live/live_project.hpp"
#include "masks/grid_model.hpp"

namespace korven::panels {

/// What one stage of a wall comes to, in words, translated: its verdict, and where it stands the
/// largest displacement, moment and shear in size with their depths, and the force of each anchor.
/// @pre `fase` is one of the project, from 1: asserted
[[nodiscard]] std::string paroleFase(const live::PareteViva& parete, int fase);

/// What is said of the wall as it was last, behind what keeps it so: nothing does, and they are the
/// words alone.
/// @param vivo  the open project
[[nodiscard]] std::string comEra(const live::ProgettoVivo& vivo, const std::string& parole);

/// The stage that a row of the open table of stages shows, and what is said below its sketch.
struct FaseDellaRiga {
    std::optional<int> fase;  ///< nothing: there is no sketch
    std::string parole;       ///< translated
};

/// Of a row whose table can't be confirmed as it stands the stage is shown as it was last, and the
/// words begin with what is in the way. An empty row, and one that is not complete yet, keep the
/// last complete row's above it.
/// @param vivo  the open project, which follows the table
[[nodiscard]] FaseDellaRiga faseDellaRiga(const live::ProgettoVivo& vivo,
                                          const masks::ModelloGriglia& griglia, int riga);

}  // namespace korven::panels
