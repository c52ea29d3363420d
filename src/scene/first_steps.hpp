#pragma once

#include <string>

#include "live/wall.hpp"

namespace korven::scene {

/// A project without layers, length and stages: nobody has begun it.
[[nodiscard]] bool nonCominciato(const project::DatiProgetto& dati);

/// Which forms of the menu are still to be filled in before the wall can be computed, translated,
/// in the order of the menu; empty where none is.
[[nodiscard]] std::string primiPassi(const live::PareteViva& parete);

}  // namespace korven::scene
