#pragma once

#include <string>

namespace korven::base {

/// The user's home folder, that for passing files where there is none.
[[nodiscard]] std::string cartellaCasa();

/// The user's folder for the program's data, by the rule of the desktop: "korven32" below
/// XDG_DATA_HOME, or below .local/share of the home folder when that names no absolute path.
[[nodiscard]] std::string cartellaDatiUtente();

/// True if what the program is told is to be kept in the user's folder: the program was installed
/// or its own folder can't be written, and nobody has named another (`cartellaProgrammaNominata`).
[[nodiscard]] bool serveCartellaUtente();

/// Lets the program read in the user's folder before its own where `serveCartellaUtente`, so that
/// all programs compute with the same number of segments and speak the same language. Makes
/// nothing: where the user has no such folder, all is as it was delivered.
void seguiCartellaUtente();

/// The folder in which the open dialog starts when nothing tells which was the last: that of the
/// examples in the program folder; where the program keeps its settings with the user, `korven32`
/// in the home folder, for names are cut at the first point of a path, and the user's folder for
/// data has one.
[[nodiscard]] std::string cartellaProgetti();

}  // namespace korven::base
