#pragma once

#include <string>

// The stored drawing as a picture file. Each file is written whole or not at all. The process needs
// a QGuiApplication.

namespace korven::device {

inline constexpr int risoluzionePredefinita = 150;  ///< of PNG files [dots per inch]
inline constexpr int risoluzioneMinima = 20;
inline constexpr int risoluzioneMassima = 1200;

/// One page with the drawing at true size: A4 upright, the drawing in its middle, or a page of the
/// drawing's size when that is larger.
/// @throws base::ErroreFile with the system's reason
void scriviPdf(const std::string& percorso);

/// @throws base::ErroreFile with the system's reason
void scriviSvg(const std::string& percorso);

/// On white ground.
/// @param dpi  resolution, within the limits above
/// @throws base::ErroreFile with the system's reason
void scriviPng(const std::string& percorso, int dpi);

}  // namespace korven::device
