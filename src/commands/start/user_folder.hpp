#pragma once

#include <string>

#include "base/disk.hpp"

namespace korven::commands {

/// Copies the data files of an installed program into a folder of the user's, where it can keep
/// what it is told. Programs are not copied. What the user may have changed there (language, pens,
/// printer, projects) is left alone; texts, hatches, masks and help, which belong to the program,
/// follow the installed ones.
/// @throws base::ErroreFile if the folder can't be made or a file can't be written
void copiaDati(const std::string& installata, const std::string& utente,
               const base::Disco& disco = base::discoDiSistema());

/// Chooses the program folder at the start of korven32 and of korven32c, so that both compute with
/// the same number of segments and speak the same language: the one that was named (`--cartella`,
/// KORVEN32_HOME), else that of the program if it can be written, else the user's, which is made
/// and brought up to date first.
///
/// One that can't be brought up to date serves as it is. Where the user can have none yet, on a
/// node of a cluster without a home for instance, the program's stays: nothing that the user has
/// set is passed over.
void scegliCartellaProgramma(const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::commands
