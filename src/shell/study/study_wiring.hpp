#pragma once

#include <functional>
#include <string>

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"
#include "shell/live/live_view.hpp"

class QPrinter;

namespace korven::shell {

class Menu1;

/// Plugs the window of studies into the item of the menu.
/// @param stampante  the printer of the program, as the printer set-up left it
/// @param annuncia   told the path of each file that was written
void collegaStudio(commands::FormeProgramma& forme, Menu1& principale, VitaProgetto& vita,
                   base::Dialogo& dialogo, const std::function<QPrinter&()>& stampante,
                   const std::function<void(const std::string&)>& annuncia);

}  // namespace korven::shell
