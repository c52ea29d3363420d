#pragma once

#include <string>

namespace korven::commands {

/// True if a file can be made in the folder; tried out, since the rights alone don't tell of a file
/// system that is read-only.
[[nodiscard]] bool cartellaScrivibile(const std::string& cartella);

/// The user's folder for the program's data, by the rule of the desktop: "korven32" below
/// XDG_DATA_HOME, or below .local/share of the home folder when that names no absolute path.
[[nodiscard]] std::string cartellaDatiUtente();

/// Copies the data files of an installed program into a folder of the user's, where it can keep
/// what it is told. Programs stay behind. What the user may have changed there (language, pens,
/// printer, projects) is left alone; texts, hatches, masks and help, which belong to the program,
/// follow the installed ones.
/// @throws base::ErroreFile if the folder can't be made or a file can't be written
void copiaDati(const std::string& installata, const std::string& utente);

/// Makes the user's folder the program folder when that of the program can't be written.
void scegliCartellaProgramma();

}  // namespace korven::commands
