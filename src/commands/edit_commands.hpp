#pragma once

#include "base/dialogo.hpp"
#include "commands/program_forms.hpp"
#include "masks/mask_values.hpp"

namespace korven::commands {

/// An editing command: refuses without an open project, shows the form with the values of
/// `Progetto` and takes back what was confirmed, with `modificato` by the rules of
/// masks/edited_tables.hpp. The stage that the diagrams draw, a field of the headings' form, is
/// no part of the project and modifies nothing.
/// @pre one of the six editing commands, whose form is plugged in: asserted
/// @throws ErroreRighe (fatal_error.hpp) if a table with more rows than it can hold was confirmed;
///         the rows have then been written beside the project
void edita(Comando comando, base::Dialogo& dialogo, masks::Maschere& maschere,
           const FormeProgramma& forme);

}  // namespace korven::commands
