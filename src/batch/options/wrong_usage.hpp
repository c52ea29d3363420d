#pragma once

#include <string>
#include <vector>

#include "batch/options/command.hpp"

// What is wrong with a command line, in the language in use. Options and commands are called by the
// names that are shown in it, whichever were typed.

namespace korven::batch {

/// @param nome  of an option, or the word of an argument by its place
[[nodiscard]] std::string mancaArgomento(const std::string& nome);
/// One of several is enough.
[[nodiscard]] std::string mancaUnoDi(const std::string& nomi);
[[nodiscard]] std::string mancaValore(const std::string& nome);
[[nodiscard]] std::string dataPiuVolte(const std::string& nome);
/// @param valori   as typed
/// @param ammessi  the values that are allowed; empty: not told
[[nodiscard]] std::string valoreNonAmmesso(const std::string& nome,
                                           const std::vector<std::string>& valori,
                                           const std::string& ammessi);
[[nodiscard]] std::string argomentoSconosciuto(const std::vector<std::string>& argomenti);
/// Options that exclude one another, or of which one is enough.
[[nodiscard]] std::string insiemeNonAmmesse(const std::string& nomi);
/// An option of another command.
/// @param comando    as shown
/// @param argomento  as typed, with its value or without
[[nodiscard]] std::string opzioneNonSua(const std::string& comando, const std::string& argomento);
/// An option in front of the command, where the program has none but its help and version.
[[nodiscard]] std::string primaDelComando(const std::string& opzione);

/// An option written "--uscita=" without a value, for which the library would take the next
/// argument; empty if there is none.
[[nodiscard]] std::string valoreVuoto(int argc, const char* const* argv);

/// A command line without a command that exists.
[[nodiscard]] std::string comandoMancante(int argc, const char* const* argv,
                                          const std::vector<RigaComando>& comandi);

}  // namespace korven::batch
