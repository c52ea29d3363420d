#pragma once

#include <QFont>
#include <string>

#include "base/dialogo.hpp"
#include "base/disk.hpp"
#include "live/live_project.hpp"
#include "shell/viewer/ports.hpp"

namespace korven::shell {

/// The dialog that asks where the picture is to be saved: it proposes the project's name.
[[nodiscard]] FileDaSalvare richiestaFigura();

/// Writes the picture as the kind of file that the extension of the path names, whatever its case;
/// SVG, PDF or PNG. Its size is always the same, whatever the window's.
/// @throws base::ErroreFile when the path is that of a project or of another kind of file, or with
/// the system's reason
void scriviFigura(const std::string& percorso, const live::ProgettoVivo& vivo, const QFont& font,
                  const base::Disco& disco);

/// Asks for a name and writes the picture; a box tells of a failure, and the name is asked for
/// again.
void salvaFigura(const live::ProgettoVivo& vivo, const QFont& font, PorteGrafica& porte,
                 base::Dialogo& dialogo);

/// Puts the picture into the clipboard, as an image and as SVG.
void copiaFigura(const live::ProgettoVivo& vivo, const QFont& font);

}  // namespace korven::shell
