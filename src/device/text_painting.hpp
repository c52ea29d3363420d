#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QTransform>
#include <string_view>

#include "device/font_glyphs.hpp"
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
    double stiramento = 1;       ///< width over that in its font (drawing_fonts.hpp)
    GlifiFont* glifi = nullptr;  ///< of that font, for texts from their point on
};

/// Writes texts on their base lines, on a transparent ground. A font is scaled to `corpo`, which
/// need not be a whole number; texts of one size in a row share the scale, which a file has to tell
/// at every change. Nothing else may paint while it lives; then the painter's scale is as before.
class PennaTesti {
 public:
    explicit PennaTesti(QPainter& pittore);
    PennaTesti(const PennaTesti&) = delete;
    PennaTesti& operator=(const PennaTesti&) = delete;
    ~PennaTesti();

    void scrivi(const TestoDaDipingere& testo);

 private:
    /// Takes a text's scale for a font at that size. @return its point in it
    [[nodiscard]] QPointF scala(const TestoDaDipingere& testo, double corpo);

    QPainter& pittore_;
    const QTransform foglio_;  // of the painter as it was
    QTransform locale_;        // of the last text, upon it
};

/// Writes one text.
void dipingiTesto(QPainter& pittore, const TestoDaDipingere& testo);

}  // namespace korven::device
