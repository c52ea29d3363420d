#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"

namespace korven::commands {

/// Chooses, at the start of the desktop program, the folder in which it keeps what it is told, and
/// makes it if it is the user's (`base::seguiCartellaUtente`). Where the user can have none, what
/// it is told is forgotten at its end.
void scegliCartellaProgramma();

/// Makes the folder in which the first open dialog starts, on a first run: the examples of a
/// language in the program folder, sorted from what lies there; where the program keeps its
/// settings with the user, `base::cartellaProgetti` with copies of those examples. What is there
/// stays.
/// @return the folder; that of the delivered examples where none can be made
/// @throws base::ErroreFile, base::ErroreScrittura as `preparaEsempi`, in the program folder alone
[[nodiscard]] std::string preparaCartellaProgetti(
    std::string_view sigla, const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::commands
