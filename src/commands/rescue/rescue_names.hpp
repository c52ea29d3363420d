#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Where work goes that would be lost, and how it is called there. Paths are UTF-8.

namespace korven::commands {

/// Where the project goes that would be lost: beside `percorso`, "_recuperato" after the name up to
/// its last point, with a number from 2 on if that name is taken.
/// @param esiste  tells whether a name is taken
[[nodiscard]] std::string nomeRecupero(std::string_view percorso,
                                       const std::function<bool(const std::string&)>& esiste);

/// Where the rows of a table go that would be lost: beside `percorso`, "_righe" after the name up
/// to its last point, "txt", numbered likewise.
[[nodiscard]] std::string nomeRighe(std::string_view percorso,
                                    const std::function<bool(const std::string&)>& esiste);

/// True for a file name that `nomeRecupero` gives to what it rescues of `percorso`, numbered or
/// not. Folders do not count.
[[nodiscard]] bool eNomeRecupero(std::string_view nome, std::string_view percorso);

/// The path of the open project, also while a run lets `fileCorrente` name its results; empty if no
/// project is open.
[[nodiscard]] const std::string& progettoAperto();

/// The folder of the user's own data, in which what can't lie beside its project does. It need not
/// exist.
[[nodiscard]] std::string cartellaRecuperi();

}  // namespace korven::commands
