#pragma once

#include <vector>

#include "live/section_checks.hpp"
#include "scene/scene.hpp"
#include "structure/interaction_domain.hpp"

namespace korven::scene {

/// The N-M domain of a section as a picture: design axial force to the right, compression positive,
/// the moment of the wall upward, positive where it stretches the excavated side. Each stage is a
/// stroke from its smallest to its largest moment with its number, red where it is not verified.
/// @param dominio  as `structure::dominioNM`; empty: nothing but a sentence is drawn
[[nodiscard]] Scena scenaDominio(const std::vector<structure::PuntoDominio>& dominio,
                                 const std::vector<live::FaseNelDominio>& fasi,
                                 const Misura& misura, const MisuraTesti& testi,
                                 const std::string& senza);

/// What the picture says: how far the domain reaches and which stages lie outside.
[[nodiscard]] std::string descrizioneDominio(const std::vector<structure::PuntoDominio>& dominio,
                                             const std::vector<live::FaseNelDominio>& fasi);

}  // namespace korven::scene
