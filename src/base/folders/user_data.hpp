#pragma once

#include <string>

namespace korven::base {

/// The user's folder for the program's data, by the rule of the desktop: "korven32" below
/// XDG_DATA_HOME, or below .local/share of the home folder when that names no absolute path.
[[nodiscard]] std::string cartellaDatiUtente();

/// True if the user's folder is to take the place of the program's: that can't be written, and
/// nobody has named another (`cartellaProgrammaNominata`).
[[nodiscard]] bool serveCartellaUtente();

/// Makes the user's folder the program folder where `serveCartellaUtente` and there is one: for
/// outdoc, which only reads what the other programs have laid there.
void seguiCartellaUtente();

}  // namespace korven::base
