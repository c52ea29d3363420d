#pragma once

#include <string>

#include "studies/plan/fault.hpp"

namespace korven::studies {

/// What is wrong with a text that should make variants, in one translated line, with its place:
/// "riga 3, colonna 2: "12,5": il segno decimale è il punto: 12.5".
[[nodiscard]] std::string parole(const DifettoPiano& difetto);

}  // namespace korven::studies
