#pragma once

#include <functional>
#include <string>
#include <string_view>

// The names of a document that is opened and saved with dialogs, and the texts made from them.
// Paths are UTF-8.

namespace korven::commands {

/// Pattern and default extension of the file dialogs.
inline constexpr std::string_view modelloProgetti = "*.kvd";
inline constexpr std::string_view estensioneProgetti = "kvd";

/// The name of the project that an answer of the open dialog means: a point within the last four
/// characters ends the name, and ".kvd" is put in its place, so that the extension is always that
/// and a name may be typed without one: "A.OLD.KVD" is "A.OLD.kvd", "muro" is "muro.kvd".
[[nodiscard]] std::string nomeDaAprire(std::string_view risposta);

/// True if that name says that nothing was chosen: "*.kvd" or ".kvd", with or without a folder.
[[nodiscard]] bool nessunaScelta(std::string_view nome);

/// The name under which a project is saved that was called `risposta` in the save dialog: cut after
/// the first point of the whole path, wherever that is, and "kvd" appended. A folder with a point
/// in its name cuts the path there.
[[nodiscard]] std::string nomeDaSalvare(std::string_view risposta);

/// The file name without its folder: what the save dialog proposes.
[[nodiscard]] std::string nomeProposto(std::string_view percorso);

/// The file name that a copy of a project is proposed: "muro_copia.kvd", with a number from 2 on if
/// that name is taken in the folder of the project.
/// @param esiste  tells whether a path is taken
[[nodiscard]] std::string nomeCopia(std::string_view percorso,
                                    const std::function<bool(const std::string&)>& esiste);

/// "KORVEN 32 - muro": the file name in lower case, cut at its first point.
[[nodiscard]] std::string titoloFinestra(std::string_view percorso);

/// The line of the about box that names the open project: "File corrente: /HOME/ANNA/MURO", the
/// whole path in upper case, cut at its first point. The first "&" is doubled, since a label takes
/// a single one for the mark of an access key. Empty when no project is open.
[[nodiscard]] std::string rigaFileCorrente(std::string_view percorso);

}  // namespace korven::commands
