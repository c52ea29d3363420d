#pragma once

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"

class QWidget;

namespace korven::shell {

/// Plugs what the items of the menu of tools open into the commands of the program.
/// @param dialogo  the boxes; must outlive the commands
void collegaStrumenti(commands::FormeProgramma& forme, base::Dialogo& dialogo, QWidget& principale);

}  // namespace korven::shell
