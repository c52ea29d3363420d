#pragma once

#include <string>

#include "base/disk.hpp"

// The file "path" of the program folder: one line, the folder of the project opened or saved last.
// It saves the user a walk through folders and nothing more, so whatever goes wrong with it is
// passed over.

namespace korven::commands {

/// Goes to the folder of the last project, for the open dialog to start there. Makes the file
/// first, with the folder of the examples, if there is none.
void vaiAllUltimaCartella();

/// Goes to the folder of a project and remembers it for the next time.
void ricordaCartella(const std::string& progetto);

/// Goes to the folder of a project.
void vaiAllaCartellaDi(const std::string& progetto);

/// Writes the file: the folder that the next open dialog starts in.
void scriviUltimaCartella(const std::string& cartella,
                          const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::commands
