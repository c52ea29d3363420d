#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// The folder in which the program keeps what it is told, and in which its own files lie unless
/// they lie apart (`cartellaDati`): the one given to `impostaCartellaProgramma`, else the one that
/// the environment variable KORVEN32_HOME names, else the one given to `impostaCartellaUtente`,
/// else that of the delivered files. Ends without a separator.
[[nodiscard]] std::string cartellaProgramma();

/// The folder of the files that are delivered with the program: the named program folder where one
/// was named, else `share/korven32` beside the `bin` of an installed program, else the folder of
/// the executable. Ends without a separator.
[[nodiscard]] std::string cartellaDati();

/// The folder in which the other programs lie: `lib/korven32` of an installed program, else the
/// folder of the executable.
[[nodiscard]] std::string cartellaAltriProgrammi();

/// True if the program lies where a package has put it, apart from its data: nothing of its own
/// may be written there, whoever runs it.
[[nodiscard]] bool programmaInstallato();

/// True if the program folder was named, by `impostaCartellaProgramma` or the environment.
[[nodiscard]] bool cartellaProgrammaNominata();

/// Names the program folder for the rest of the process; empty goes back to the rule above.
void impostaCartellaProgramma(std::string cartella);

/// Lets the program keep what it is told in a folder of the user's, while its own files stay where
/// they are; empty goes back to the rule above.
void impostaCartellaUtente(std::string cartella);

/// Path of a file of the program folder, for reading. The case of its name does not matter: if no
/// file has the very name, the first in alphabetical order that differs only in the case of ASCII
/// letters is it.
///
/// Where the delivered files lie apart, those that a newer version brings anew (texts, hatches,
/// masks, help, catalogues) are taken from there, others from there if the program folder has none.
/// When there is none, or the folder can't be listed, the path where it would be written.
[[nodiscard]] std::string fileProgramma(std::string_view nome);

/// Path of a document of the program, for reading: "README", "docs/theory". Of an installed program
/// the page that a browser reads; of one that was built in place the source, to which documenti.md
/// beside the program leads. Empty when there is none.
[[nodiscard]] std::string fileDocumento(std::string_view nome);

}  // namespace korven::base
