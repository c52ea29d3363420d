#pragma once

#include <functional>

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"

class QPrinter;
class QWidget;

namespace korven::shell {

/// The set-up of the printer of the program, in the dialog of the system. Where there is no printer
/// a box says so, that prints go to PDF files, and the page of these is asked for.
/// @param stampante    changed by what is chosen, and only when the dialog is confirmed
/// @param haStampanti  whether the system has any
void impostaStampante(QPrinter& stampante, bool haStampanti, base::Dialogo& dialogo,
                      QWidget* padre);

/// Plugs the printer set-up, the viewer of drawings and the form of the pens into their commands.
/// From here on drawings appear in the viewer, which lives as long as a copy of `forme`.
/// @param principale  the main form; it and the dialog must outlive `forme`
/// @param stampante   the printer of the program, called when it is needed
/// @param annuncia    told the path of each file of a drawing that was written; may be empty
void collegaDisegni(commands::FormeProgramma& forme, QWidget& principale, base::Dialogo& dialogo,
                    std::function<QPrinter&()> stampante,
                    const std::function<void(const std::string&)>& annuncia = {});

}  // namespace korven::shell
