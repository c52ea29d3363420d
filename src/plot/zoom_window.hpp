#pragma once

#include "plot/geometry.hpp"

// The arithmetic of looking at a stored drawing: which rectangle a drag or a pan shows.

namespace korven::plot {

inline constexpr double zoomMinimo = 0.5;  ///< least width and height of a zoom window [cm]

/// The zoom window of a drag between two points: its corners ordered, held inside the drawing
/// window, then widened to the right and up to the least size. A drag that ends where it began
/// shows a square of half a centimetre.
[[nodiscard]] Riquadro riquadroZoom(Punto inizio, Punto fine, const Riquadro& finestra);

enum class Direzione { sinistra, destra, alto, basso };
enum class PassoSpostamento { breve, lungo };

/// The zoom window moved by a fifth of its width or height, or by four fifths. The buttons speak of
/// a quarter and of a whole window; the steps are less on purpose, so that a strip of what was seen
/// before stays in view. Nothing holds the window inside the drawing.
[[nodiscard]] Riquadro spostaZoom(const Riquadro& zoom, Direzione direzione,
                                  PassoSpostamento passo);

/// Shows the window of a drag on the drawing that the surface shows now.
void plotIngrandisci(Punto inizio, Punto fine);

/// Moves the zoom in force and shows it. Without a zoom it does nothing.
void plotSposta(Direzione direzione, PassoSpostamento passo);

}  // namespace korven::plot
