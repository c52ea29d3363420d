#pragma once

#include <vector>

#include "base/twin_names.hpp"
#include "plot/geometry.hpp"

namespace korven::batch {

struct FoglioConNome {
    base::Gemelli nome;
    plot::Foglio foglio;  ///< [cm]
};

/// The sheets that a drawing can be made for: "A4" upright, "A4-orizzontale" lying.
[[nodiscard]] const std::vector<FoglioConNome>& fogli();

}  // namespace korven::batch
