#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"
#include "profiles/profile_rows.hpp"

// The two files of the catalogue: what is delivered with the program, and what the user has put in.
// Nothing but the user's own commands touches the second, no newer version either.

namespace korven::profiles {

inline constexpr std::string_view nomeProfili = "profili.txt";
inline constexpr std::string_view nomeProfiliUtente = "profili_utente.txt";

/// The user's file, in the folder of the user's data wherever the program lies.
[[nodiscard]] std::string fileProfiliUtente();

/// Both files as they are now. A file that is missing holds nothing, one that can't be read is told
/// as one broken row.
[[nodiscard]] Catalogo leggiCatalogo();

/// Puts a row behind the user's, whose comments and broken lines stay.
/// @return why it can't be, translated: what `difetto` finds, a name that the user has for this
///         kind already, a file that can't be read or written; empty when it is kept
[[nodiscard]] std::string aggiungiProfilo(const Profilo& profilo,
                                          const base::Disco& disco = base::discoDiSistema());

/// Takes the first of the user's rows that is this one out, with its line alone.
/// @return why it can't be, translated; empty when it is out, or was not there
[[nodiscard]] std::string togliProfilo(const Profilo& profilo,
                                       const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::profiles
