#pragma once

#include "project/field_table.hpp"

namespace korven::project {

/// The unit of a field where it is told that it counts a metre of wall: "kN/m" of a force that the
/// editors, the report and its drawings show in "kN". Both have the same factor. The field's own
/// unit for all that acts on no metre of wall.
[[nodiscard]] const Unita& unitaAlMetro(const Campo& campo);

/// The unit that a value is told with in plain text: of the coefficient m of the modulus, which
/// reads tonnes-force, too, though no editor shows it.
[[nodiscard]] std::string_view unitaScritta(const Campo& campo);

}  // namespace korven::project
