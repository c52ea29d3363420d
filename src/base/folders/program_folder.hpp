#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// The folder in which the program's own files lie: the one given to `impostaCartellaProgramma`,
/// else the one that the environment variable KORVEN32_HOME names, else the folder of the
/// executable. Ends without a separator.
[[nodiscard]] std::string cartellaProgramma();

/// True if that folder was named, by `impostaCartellaProgramma` or the environment.
[[nodiscard]] bool cartellaProgrammaNominata();

/// Names the program folder for the rest of the process; empty goes back to the rule above.
void impostaCartellaProgramma(std::string cartella);

/// Path of a file of the program folder. The case of its name does not matter: if no file has the
/// very name, the first in alphabetical order that differs only in the case of ASCII letters is it.
/// When there is none, or the folder can't be listed, the path where it would be.
[[nodiscard]] std::string fileProgramma(std::string_view nome);

/// The folder of the executable, whatever the program folder is: the other programs lie there.
[[nodiscard]] std::string cartellaEseguibile();

}  // namespace korven::base
