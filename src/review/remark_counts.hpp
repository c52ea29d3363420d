#pragma once

#include <string>

#include "review/remark.hpp"

namespace korven::review {

/// "1 pericolo", "2 da vedere": a number of remarks of one weight, translated.
[[nodiscard]] std::string conteggio(int quante, Peso peso);

/// "1 impedisce il calcolo, 1 pericolo, 2 da vedere": the weights that there are, the heaviest
/// first; "nessuna osservazione" without any.
[[nodiscard]] std::string conteggio(const Osservazioni& osservazioni);

}  // namespace korven::review
