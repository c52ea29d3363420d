#pragma once

#include <vector>

#include "masks/values.hpp"
#include "project/field_table.hpp"

namespace korven::masks {

/// Number of the field in which the headings' form shows the stage that diagrams draw: after the
/// heading lines. It is no field of the project.
inline constexpr int campoFase = project::numeroTitoli + 1;

/// The fields of the project that a form shows, in its order: the choices and fields of a field
/// form, the columns of a grid after that of the row numbers; the headings are one column.
[[nodiscard]] std::vector<const project::Campo*> campiEditati(NumeroMaschera numero);

}  // namespace korven::masks
