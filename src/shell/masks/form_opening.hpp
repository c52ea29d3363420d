#pragma once

#include <functional>

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"
#include "masks/values.hpp"
#include "shell/masks/form_frame.hpp"

namespace korven::shell {

class Base1;
class Base2_32;
class VitaProgetto;

/// Makes the panel that goes beside a table; nullptr for a table without one.
using PannelloTabella = std::function<QWidget*(Base2_32& forma, masks::NumeroMaschera numero)>;

/// The same beside a form of fields.
using PannelloCampi = std::function<QWidget*(Base1& forma, masks::NumeroMaschera numero)>;

/// What goes beside the forms; either may be empty.
struct PannelliForme {
    PannelloTabella tabella{};
    PannelloCampi campi{};
};

/// Shows the form of the current mask, `base1` for fields and `base2_32` for a grid, with its
/// values, until it is closed. What was confirmed goes back to `maschere`.
/// @param vita  told what stands in the form at each change
/// @throws base::ErroreIndice for a grid with more than 500 rows
void mostraForm(masks::Maschere& maschere, base::Dialogo& dialogo, const GuidaForme& guida,
                QWidget* padre, VitaProgetto* vita = nullptr, const PannelliForme& pannelli = {});

/// Plugs the forms into the commands. Their help button opens what `forme.guida` is by then, so
/// this comes after it.
void collegaMaschere(commands::FormeProgramma& forme, base::Dialogo& dialogo, QWidget* padre,
                     VitaProgetto* vita = nullptr, const PannelliForme& pannelli = {});

}  // namespace korven::shell
