#pragma once

#include <string>

#include "project/units.hpp"

namespace korven::scene {

/// A stored number with its unit, as it is shown: "12.5 kN".
[[nodiscard]] std::string conUnita(double conservato, const project::Unita& unita,
                                   int decimali = 1);

/// The same without zeros at its end: "10 kN/m²", "2.5 m".
[[nodiscard]] std::string breve(double conservato, const project::Unita& unita, int decimali = 2);

/// A depth: "4.20 m".
[[nodiscard]] std::string quota(double z);

}  // namespace korven::scene
