#pragma once

#include <vector>

#include "masks/values.hpp"
#include "project/field_table.hpp"

namespace korven::masks {

/// The fields of the project that a form shows, in its order: the choices and fields of a field
/// form, the columns of a grid after that of the row numbers. The stage that diagrams draw, which
/// the headings' form shows too, is no field of the project.
[[nodiscard]] std::vector<const project::Campo*> campiEditati(NumeroMaschera numero);

}  // namespace korven::masks
