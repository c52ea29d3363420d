#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QString>
#include <string_view>

#include "plot/colour.hpp"

namespace korven::device {

/// Colour of a drawing as Qt has it.
[[nodiscard]] QColor qColore(plot::Colore colore);

/// A text of a drawing as a device is to write it.
struct TestoDaDipingere {
    QPointF punto;  ///< on the base line [units of the painter]
    QFont font;     ///< at any size in pixels
    double corpo;   ///< size of the font wanted [units of the painter]
    double gradi;   ///< rotation, counter-clockwise
    bool centrato;  ///< about the point, else the text starts there
    plot::Colore colore;
    std::string_view testo;
    double stiramento = 1;  ///< width over that in its font (drawing_fonts.hpp)
};

/// Writes a text on its base line, on a transparent ground. The font is scaled to `corpo`, which
/// need not be a whole number.
void dipingiTesto(QPainter& pittore, const TestoDaDipingere& testo);

}  // namespace korven::device
