#pragma once

#include <string>
#include <string_view>

#include "factors/factor_rows.hpp"

// The two files of partial factors: what is delivered with the program, and what the user has
// written. The program writes neither.

namespace korven::factors {

inline constexpr std::string_view nomeCombinazioni = "combinazioni.txt";
inline constexpr std::string_view nomeCombinazioniUtente = "combinazioni_utente.txt";

/// The user's file, in the folder of the user's data wherever the program lies.
[[nodiscard]] std::string fileCombinazioniUtente();

/// Both files as they are now. The user's may be missing; that of the program is told as a fault if
/// it is, and so is each that can't be read.
[[nodiscard]] Catalogo leggiCombinazioni();

}  // namespace korven::factors
