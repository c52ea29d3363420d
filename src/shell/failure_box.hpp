#pragma once

#include <functional>

#include "base/dialogo.hpp"

namespace korven::shell {

/// Does what the user asked of a form that stays open. When a file or a printer fails, a box says
/// so and the program goes on: nothing is lost by it, and the user may try another file.
/// @return false when it failed
bool conAvviso(base::Dialogo& dialogo, const std::function<void()>& azione);

}  // namespace korven::shell
