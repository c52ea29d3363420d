#pragma once

#include <QFont>
#include <QImage>
#include <string>

#include "base/disk.hpp"
#include "scene/picture.hpp"

// A picture as a file, in the light palette: files go to paper and into documents. Each is written
// whole or not at all. The process needs a QGuiApplication.

namespace korven::device {

/// A picture to be written.
struct ScenaDaScrivere {
    const scene::Scena& scena;
    QFont font;               ///< that its texts were measured in
    std::string titolo;       ///< of the document
    std::string descrizione;  ///< what it shows, in words
};

/// @return the content of an SVG file
[[nodiscard]] std::string testoSvg(const ScenaDaScrivere& scena);

/// @throws base::ErroreFile with the system's reason
void scriviScenaSvg(const std::string& percorso, const ScenaDaScrivere& scena,
                    const base::Disco& disco = base::discoDiSistema());

/// A page of the size of the picture, at 96 pixels to the inch.
/// @throws base::ErroreFile with the system's reason
void scriviScenaPdf(const std::string& percorso, const ScenaDaScrivere& scena,
                    const base::Disco& disco = base::discoDiSistema());

/// @param dpi  resolution, as of a drawing (drawing_files.hpp): asserted
/// @throws base::ErroreFile with the system's reason
void scriviScenaPng(const std::string& percorso, const ScenaDaScrivere& scena, int dpi,
                    const base::Disco& disco = base::discoDiSistema());

/// The picture in memory.
/// @param rapporto  its pixels in one of the picture
[[nodiscard]] QImage immagineScena(const ScenaDaScrivere& scena, double rapporto);

}  // namespace korven::device
