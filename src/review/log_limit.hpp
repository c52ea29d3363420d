#pragma once

#include <string>

#include "project/project_data.hpp"

namespace korven::review {

/// Height on the ground that the command line draws in one log [m]. No wall needs a hundredth of
/// it; what is higher is a slip of the pen, which would be hatched over kilometres of paper.
inline constexpr double massimaAltezzaStratigrafia = 500;

/// Why the log of these layers is not drawn where nobody sees it grow: it would be higher than
/// `massimaAltezzaStratigrafia`. Names the layer that lies farthest from the ground level,
/// with its depth.
/// @return translated, one line; empty when the log can be drawn
[[nodiscard]] std::string rifiutoStratigrafia(const project::DatiProgetto& dati);

}  // namespace korven::review
