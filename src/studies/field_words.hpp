#pragma once

#include <string>

#include "project/depth_order.hpp"
#include "project/typed_field.hpp"

namespace korven::studies {

/// Why a typed name or value can't be taken, in one translated line: what was typed, what is wrong
/// with it, what may stand there: "phiStrato[2] [°] = 70: ammessi valori da 0 a 60".
[[nodiscard]] std::string parole(const project::Rifiuto& rifiuto);

/// Two rows out of order, with both depths.
/// @param dati  has them
[[nodiscard]] std::string parole(const project::Disordine& disordine,
                                 const project::DatiProgetto& dati);

/// The codes that a field takes, by number and name: "1 (libera), 2 (cerniera)".
[[nodiscard]] std::string codiciAmmessi(const project::Campo& campo);

}  // namespace korven::studies
