#pragma once

#include <vector>

#include "live/section_checks.hpp"
#include "scene/picture.hpp"
#include "structure/interaction_domain.hpp"

namespace korven::drawings {

/// The N-M domain as the desktop shows it, with the number of the stage at both points of each,
/// clear of the domain's border, in the pixels of `pixelCarta`; without figures for an empty one.
/// @param larghezza, altezza  [cm]
[[nodiscard]] scene::Scena scenaDominioCarta(const std::vector<structure::PuntoDominio>& dominio,
                                             const std::vector<live::FaseNelDominio>& fasi,
                                             double larghezza, double altezza);

}  // namespace korven::drawings
