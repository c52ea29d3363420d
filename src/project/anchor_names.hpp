#pragma once

#include <string>

#include "project/project_data.hpp"

namespace korven::project {

/// True for an anchor that takes compression: it stands in the excavation, and people call it a
/// strut. @pre `j` is a row of the table of anchors, from 1
[[nodiscard]] bool puntone(const DatiProgetto& dati, int j);

/// "Tirante 2", of a strut "Puntone 2", translated.
[[nodiscard]] std::string nomeTirante(const DatiProgetto& dati, int j);

/// The same where there is hardly any room: "T2", the first letter of the name in each language.
[[nodiscard]] std::string siglaTirante(const DatiProgetto& dati, int j);

}  // namespace korven::project
