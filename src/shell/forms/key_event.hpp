#pragma once

#include <QKeyEvent>
#include <optional>

#include "masks/key.hpp"

namespace korven::shell {

/// The key of an event as the models of the forms know it. A key that types something is `punto` or
/// `carattere`; the decimal key of the number pad is `punto` whatever it types, since on many
/// keyboards it types a comma and "." is the decimal point everywhere in the program.
/// @return nothing for a key that the models give no meaning, and for those pressed with Ctrl or
///         Alt; a character of the third level (AltGr) is typed like any other
[[nodiscard]] std::optional<masks::Tasto> tastoDi(const QKeyEvent& evento);

/// True for the decimal key of the number pad where it types something else than ".".
[[nodiscard]] bool virgolaDelTastierino(const QKeyEvent& evento);

}  // namespace korven::shell
