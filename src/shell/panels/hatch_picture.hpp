#pragma once

#include <QPixmap>
#include <QSize>

#include "plot/colour.hpp"

namespace korven::shell {

/// A field filled by a hatch code, as the log draws it: on a white sheet under any theme, a
/// centimetre of the sheet 48 pixels wide.
/// @param fattore  pixels of the screen to one of the picture
/// @throws base::ErroreFile when the hatch library is missing or broken
[[nodiscard]] QPixmap immagineCampitura(double codice, plot::Colore colore, QSize misura,
                                        qreal fattore);

}  // namespace korven::shell
