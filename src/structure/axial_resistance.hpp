#pragma once

#include "project/section.hpp"

namespace korven::structure {

/// Design forces that crush and tear one metre of wall when all of it is strained alike [N].
struct ResistenzeAssiali {
    double compressione;
    double trazione;
};

/// With the areas and the stress laws of the bending check, at its limits of strain: 0.0035 of
/// shortening, 0.01 of elongation. Beyond these no curvature is in equilibrium with the axial
/// force, and the check gives a resistance of 0.
/// @pre the section is `sezioneValida`: asserted
/// @throws base::ErroreIndice for more bars than a pile may have
[[nodiscard]] ResistenzeAssiali resistenzeAssiali(const project::Sezione& sezione);

}  // namespace korven::structure
