#pragma once

#include <string>

namespace korven::base {

/// Why the operating system refused, in the language of the program: "permesso negato" for EACCES.
/// A reason that has no text of ours is told as the system tells it.
/// @param codice  as `errno` holds it
[[nodiscard]] std::string motivoSistema(int codice);

}  // namespace korven::base
