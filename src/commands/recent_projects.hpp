#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/disk.hpp"

// The file "recenti" of the program folder: the projects opened or saved last, a path a line in
// UTF-8, the newest first. Like the file of the last folder it saves its user a walk and nothing
// more, so whatever goes wrong with it is passed over.

namespace korven::commands {

inline constexpr std::size_t massimoRecenti = 10;

/// The projects opened or saved last, the newest first, each once; they need not exist any more.
[[nodiscard]] std::vector<std::string> progettiRecenti();

/// Puts a project at the head of the list, which forgets the oldest beyond `massimoRecenti`. The
/// same file under another path (through a link, "..") moves to the head under the new one. A name
/// that opening would take for another one, without the extension of projects, is not kept.
/// @param percorso  of the project, absolute
void ricordaRecente(const std::string& percorso, const base::Disco& disco = base::discoDiSistema());

/// Empties the list.
void dimenticaRecenti(const base::Disco& disco = base::discoDiSistema());

/// How the menu names the project at a place of the list, from 0: a digit as its access key, 0 for
/// the tenth, then name and folder, "&1 muro.kvd - /lavori". A long folder loses its middle. An "&"
/// of the path is doubled, since a menu takes a single one for the mark of the key.
[[nodiscard]] std::string voceRecente(std::size_t posto, const std::string& percorso);

}  // namespace korven::commands
