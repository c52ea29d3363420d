#pragma once

#include "plot/colour.hpp"
#include "scene/palette.hpp"

namespace korven::drawings {

/// What a role is drawn with on paper: greys, and few colours that are dark where they draw and
/// pale where they fill, so that nothing is lost on a printer without colours.
/// `plot::bianco` for what leaves the paper as it is.
[[nodiscard]] plot::Colore inchiostro(scene::Tinta tinta);

/// Width of a line on paper [cm], of one that is `spessore` pixels wide on a screen. The finest is
/// a tenth of a millimetre; what is wider than a line is as wide as it is in the layout.
[[nodiscard]] double spessoreCarta(scene::Ruolo ruolo, double spessore);

}  // namespace korven::drawings
