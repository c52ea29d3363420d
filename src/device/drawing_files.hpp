#pragma once

#include <cstddef>
#include <string>

#include "base/disk.hpp"
#include "plot/geometry.hpp"

// The stored drawing as a picture file. Each file is written whole or not at all, and none is held
// in memory. The process needs a QGuiApplication. `plot::statoPlot.sorveglia` may end the writing,
// which then throws plot::DisegnoInterrotto.

namespace korven::device {

inline constexpr int risoluzionePredefinita = 150;  ///< of PNG files [dots per inch]
inline constexpr int risoluzioneMinima = 20;
inline constexpr int risoluzioneMassima = 1200;
inline constexpr std::size_t fasciaPredefinita = std::size_t{1} << 25;  ///< of PNG files [byte]
inline constexpr plot::Foglio foglioPredefinito{21.0, 29.7};  ///< of PDF files: A4 upright [cm]

/// One page with the drawing at true size, the drawing in its middle.
/// @param foglio  the page [cm]; larger where the drawing is
/// @throws base::ErroreFile with the system's reason
void scriviPdf(const std::string& percorso, const plot::Foglio& foglio = foglioPredefinito,
               const base::Disco& disco = base::discoDiSistema());

/// @throws base::ErroreFile with the system's reason
void scriviSvg(const std::string& percorso, const base::Disco& disco = base::discoDiSistema());

/// On white ground, painted and written in strips: a sheet at the finest resolution takes
/// half a gigabyte.
/// @param dpi         resolution, within the limits above: asserted
/// @param byteFascia  memory of a strip, which has at least one row
/// @throws base::ErroreFile with the system's reason
void scriviPng(const std::string& percorso, int dpi, std::size_t byteFascia = fasciaPredefinita,
               const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::device
