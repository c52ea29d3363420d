#pragma once

#include <string>

#include "base/disk.hpp"
#include "shell/viewer/ports.hpp"

namespace korven::shell {

/// PDF files.
[[nodiscard]] TipoFile tipoPdf();

/// The save dialog of the DXF export: the name follows the project's.
[[nodiscard]] FileDaSalvare richiestaDxf();

/// The save dialog of the other picture files: PDF, SVG, PNG.
[[nodiscard]] FileDaSalvare richiestaImmagine();

/// The dialog that asks where to print when there is no printer.
[[nodiscard]] FileDaSalvare richiestaPdf();

/// Writes the stored drawing as the kind of file that the extension of the path names, whatever its
/// case; PDF when it names none of the three.
/// @throws base::ErroreFile with the system's reason
void scriviImmagine(const std::string& percorso, const base::Disco& disco);

}  // namespace korven::shell
