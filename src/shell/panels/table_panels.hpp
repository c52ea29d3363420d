#pragma once

#include "base/dialogo.hpp"
#include "shell/masks/form_opening.hpp"

namespace korven::shell {

/// The panels beside the tables of the program.
/// @param dialogo  must outlive them
[[nodiscard]] PannelloTabella pannelliTabelle(base::Dialogo& dialogo);

}  // namespace korven::shell
