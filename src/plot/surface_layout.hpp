#pragma once

#include "plot/drawing_surface.hpp"
#include "plot/geometry.hpp"

namespace korven::plot {

/// How a drawing window lies on a surface.
struct DisposizioneSuperficie {
    double larghezza = 0;  ///< of the surface [pixels]
    double altezza = 0;    ///< [pixels]
    Riquadro finestra;     ///< the window, its xmax grown where a narrow drawing had to be widened
    double scalaX = 0;     ///< pixels per centimetre
    double scalaY = 0;
};

/// Gives a surface the largest size in its room that keeps the proportions of the window. A surface
/// narrower than six tool strips is widened to that, and the window grows to the right with it.
/// @pre the window has a width and a height: asserted
[[nodiscard]] DisposizioneSuperficie disponiSuperficie(const Riquadro& finestra,
                                                       const SpazioDisegno& spazio);

/// Height of the font [pixels] for characters of `altezza` [cm] on a surface, negative as it is
/// that of the characters: four thirds of the height in whole pixels, at least 1.
[[nodiscard]] int carattereSuperficie(double altezza, double scalaX, double scalaY);

/// Width of a line [pixels] on a surface: rounded down, at least 1.
[[nodiscard]] int spessoreSuperficie(double spessore, double scalaX, double scalaY);

}  // namespace korven::plot
