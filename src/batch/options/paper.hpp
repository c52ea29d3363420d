#pragma once

#include <map>
#include <string>

#include "plot/geometry.hpp"

namespace korven::batch {

/// The sheets that a drawing can be made for, by name: "A4" upright, "A4-orizzontale" lying. [cm]
[[nodiscard]] const std::map<std::string, plot::Foglio>& fogli();

}  // namespace korven::batch
