#pragma once

#include <string>
#include <string_view>

namespace korven::help {

/// The entry of the table of help contexts of a window, by its name: "GRAFICA", "Editacfg". 0 for a
/// window that has none of its own.
[[nodiscard]] int voceForma(std::string_view finestra);

/// True where F1 does nothing: the field form, whose help is on its button. After "_" its name has
/// the entry of its mask.
[[nodiscard]] bool senzaF1(std::string_view finestra);

/// The place within a page that tells of a control: "campo" and its name up to "_", which the
/// number of one among equals follows. "Option1_3" gives "campoOption1", "4" gives "campo4". Empty
/// for a control without a name.
[[nodiscard]] std::string ancoraCampo(std::string_view controllo);

/// The same for the cursor in a grid: its first column of data, 0, is field 2 of the mask, after
/// the row numbers.
[[nodiscard]] std::string ancoraColonna(int colonna);

}  // namespace korven::help
