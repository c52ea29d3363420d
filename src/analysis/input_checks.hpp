#pragma once

#include <string_view>

#include "project/project_data.hpp"

namespace korven::analysis {

/// The first reason why a run would be refused before anything is read or written, as an Italian
/// key; empty if there is none. The missing stiffness is no such reason: the section may give it.
[[nodiscard]] std::string_view motivoRifiuto(const project::DatiProgetto& dati);

/// The message of a run without a bending stiffness, an Italian key.
inline constexpr std::string_view messaggioSenzaEJ = "Il valore di EJ non è ancora stato definito.";

/// The message of an unusable `nseg.txt`, an Italian key.
inline constexpr std::string_view messaggioNSeg =
    "Il numero di segmenti indicato in nseg.txt non è ammesso (un intero da 3 a 249, con il piede "
    "incastrato da 3 a 248), i calcoli non possono pertanto essere eseguiti.";

}  // namespace korven::analysis
