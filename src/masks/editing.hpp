#pragma once

#include <string>
#include <vector>

#include "masks/values.hpp"
#include "project/project_data.hpp"

// The two ends of an editing command: what goes into the form, and what comes back out of it.

namespace korven::masks {

/// Selects a mask and fills its values from the project, in the units that the user sees.
/// @param fase  the stage that diagrams draw, edited with the headings
void preparaMaschera(Maschere& maschere, NumeroMaschera numero, const project::DatiProgetto& dati,
                     int fase);

/// Rows that the table of a grid mask holds; 0 for a mask without a table.
[[nodiscard]] int capienza(NumeroMaschera numero);

/// The rows of a confirmed grid as text: cells parted by tabs, rows by CR LF, as the clipboard
/// takes them.
[[nodiscard]] std::string testoRighe(const Maschere& maschere);

/// Takes the values of a confirmed form back (edited_tables.hpp).
/// @param fase  receives the stage that diagrams draw, a whole number from 0, 0 for what is none;
///              its change never modifies the project, as no file holds it
/// @return true if the project counts as modified: a table always, wall and headings if
///         a value differs
/// @throws base::ErroreIndice if a table has more rows than the project holds
bool riprendiMaschera(const Maschere& maschere, NumeroMaschera numero, project::DatiProgetto& dati,
                      int& fase);

/// The same of texts alone: those that `leggiCampo` gives, field after field, the codes of choices
/// first. Of the headings' form the stage drawn is passed over.
bool riprendi(NumeroMaschera numero, const std::vector<std::string>& testi,
              project::DatiProgetto& dati);

}  // namespace korven::masks
