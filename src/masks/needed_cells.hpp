#pragma once

#include "masks/values.hpp"
#include "project/project_data.hpp"

namespace korven::masks {

/// True when a calculation reads a number of a table, so that an empty cell is a value that is
/// still to be given: each one but ks of a layer where another rule gives the subgrade modulus.
/// @param colonna  of the table, from 1; of a column of text: false
[[nodiscard]] bool cellaNecessaria(NumeroMaschera numero, int colonna,
                                   const project::DatiProgetto& dati);

}  // namespace korven::masks
