#pragma once

#include "scene/picture.hpp"
#include "scene/scene.hpp"

// A drawing of a document is laid out like a picture of the desktop, in pixels that are of a fixed
// size on paper: so small that the smallest of its texts can be read when it is printed.

namespace korven::drawings {

/// Pixels of a layout in a centimetre of paper. Texts of a font of 10 pixels are 2.4 mm high, the
/// smallest 2 mm, measured at their capitals.
inline constexpr double pixelCarta = 30;

/// Size of the font of a layout [px], and of its smallest texts.
inline constexpr double corpoCarta = 10, corpoPiccolo = 0.85 * corpoCarta;

/// Height of capitals over the size of their font.
inline constexpr double altezzaMaiuscole = 0.715;

/// The size of a drawing [px].
/// @param larghezza, altezza  [cm]
[[nodiscard]] inline scene::Misura misuraCarta(double larghezza, double altezza) {
    return {larghezza * pixelCarta, altezza * pixelCarta};
}

/// A drawing of that size, still empty.
[[nodiscard]] inline scene::Scena scenaCarta(const scene::Misura& misura) {
    scene::Scena s;
    s.larghezza = misura.larghezza;
    s.altezza = misura.altezza;
    s.corpo = corpoCarta;
    return s;
}

}  // namespace korven::drawings
