#pragma once

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"
#include "masks/field_places.hpp"
#include "masks/values.hpp"

namespace korven::commands {

// The two forms of the refusal without an open project differ in one word; they are keys of the
// table of texts.
inline constexpr char editareDati[] = "Non e' possibile editare dati prima di aver aperto un file.";
inline constexpr char editareIDati[] =
    "Non e' possibile editare i dati prima di aver aperto un file.";

/// An editing command: refuses without an open project, shows the form with the values of
/// `Progetto` and takes back what was confirmed, with `modificato` by the rules of
/// masks/edited_tables.hpp. The stage that the diagrams draw, a field of the headings' form, is no
/// part of the project and modifies nothing.
/// @param numero   which form, or `masks::senzaMaschera`; it is plugged in: asserted
/// @param rifiuto  what is said without an open project
/// @throws ErroreRighe (fatal_error.hpp) if a table with more rows than it can hold was confirmed;
///         the rows have then been written beside the project
void edita(masks::NumeroMaschera numero, const char* rifiuto, base::Dialogo& dialogo,
           masks::Maschere& maschere, const FormeProgramma& forme);

/// The same of an open project, with a form that begins at a field.
/// @pre a project is open, the form is plugged in: asserted
void editaDa(const masks::PostoCampo& posto, masks::Maschere& maschere,
             const FormeProgramma& forme);

}  // namespace korven::commands
