#pragma once

#include <string>

#include "base/text_lines.hpp"
#include "masks/mask.hpp"

// Mask files: text in Windows-1252, read in order. A "value" is a number or a text that ends at a
// comma or at the end of its line; a "line" is what is left of the line.
//
//     kind                 value: 1 fields, 2 to 4 grids
//     title                value
//     number of choices    value, in a mask of fields alone
//     choices              a line each: items, each ended by "|"
//     number of fields     value: those after the choices, or the columns of the grid
//     fields               label (line), type, minimum, maximum (values), help (line)
//     reference            line, in the DOS code page
//     number of buttons    value
//     captions             values
//     MN=n                 line, may be missing: entry of the help context table

namespace korven::masks {

/// Reads a mask. Its texts pass through `traduttore`; of a label only what comes before "[", so
/// that units stay as they are. A "§" before a label marks the field as read-only and is not shown.
/// @throws base::ErroreFile with the line and what was expected there: the file ends early, a
///         number is none or no count, an unknown kind, more than 25 fields, limits the wrong way
///         round, lines after the end
[[nodiscard]] Maschera leggiMaschera(base::LettoreRighe& file);

/// Reads the mask file `percorso`.
/// @throws base::ErroreFile also if it is missing or not readable
[[nodiscard]] Maschera leggiMaschera(const std::string& percorso);

}  // namespace korven::masks
