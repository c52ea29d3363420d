#pragma once

#include "base/dialogo.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/form_opening.hpp"

namespace korven::shell {

/// The panels beside the forms of the program: tables, and the fields of the wall. What the
/// calculator of anchors was asked stands in it again when its form opens the next time, as long as
/// the program runs.
/// @param dialogo, vita  must outlive them; `vita` follows each form before its panel comes
[[nodiscard]] PannelliForme pannelliForme(base::Dialogo& dialogo, VitaProgetto& vita);

}  // namespace korven::shell
