#pragma once

#include <string>

#include "safety/margin.hpp"

// The margin as `sicurezza` tells it. Every form has a row a stage, those without numbers too.

namespace korven::batch {

/// The tables of the command, with what the wall comes to in words between them.
/// @param dati  of the wall: struts are called struts
[[nodiscard]] std::string testoMargine(const safety::Margine& margine,
                                       const project::DatiProgetto& dati);

/// docs/batch.md, `safety --csv`: a row a stage, all digits of the doubles.
[[nodiscard]] std::string csvMargine(const safety::Margine& margine);

}  // namespace korven::batch
