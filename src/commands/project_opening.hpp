#pragma once

#include <string>

namespace korven::commands {

/// Sweeps away what killed programs of this house left in the folder of a project and in the
/// system's temporary folder (base/folders/leftovers.hpp).
void togliResti(const std::string& progetto);

/// Opens a project for a command: reads `percorso` into `Progetto` and makes `fileCorrente` the
/// name under which results are written, that of the project or of the same name in another folder.
/// Both are absolute, their folders without links, "." and "..", since the rules for names cut
/// paths at points. The file that was read is safe from all outputs from then on. Makes nothing,
/// and sweeps both folders.
/// @param percorso  of the project; an empty one is refused like any that names no file
/// @param uscita    folder for the results, which need not exist yet; empty: beside the project
/// @throws base::ErroreFile if the project is missing, unreadable or broken
void apriProgetto(const std::string& percorso, const std::string& uscita);

}  // namespace korven::commands
