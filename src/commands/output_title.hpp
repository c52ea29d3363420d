#pragma once

#include <string>

namespace korven::commands {

/// What the outputs of the open project are called, in title bars and in the queue of a printer:
/// "KORVEN 32 - muro.kvd". It is the project's own name also while a run makes them, when
/// `fileCorrente` names its results.
[[nodiscard]] std::string titoloUscite();

}  // namespace korven::commands
