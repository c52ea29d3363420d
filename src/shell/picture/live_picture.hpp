#pragma once

#include <functional>

#include "base/dialogo.hpp"
#include "shell/live/live_view.hpp"

class QPrinter;

namespace korven::shell {

class Menu1;

/// Puts the picture of the open project into the main form, from the first project on that is
/// opened.
/// @param vita, dialogo  outlive the main form
/// @param stampante      the printer of the program (viewer/dialogs.hpp)
void collegaFigura(Menu1& principale, VitaProgetto& vita, base::Dialogo& dialogo,
                   std::function<QPrinter&()> stampante);

}  // namespace korven::shell
