#pragma once

#include <string_view>

#include "plot/colour.hpp"
#include "plot/geometry.hpp"
#include "plot/strokes.hpp"

namespace korven::plot {

/// Room that a window has for a drawing.
struct SpazioDisegno {
    double larghezza = 0;        ///< client area less tool strip and borders [pixels]
    double altezza = 0;          ///< [pixels]
    double strisciaComandi = 0;  ///< width of the tool strip [pixels]
};

/// How a text is to be written on a surface.
struct TestoSuperficie {
    Punto punto;        ///< [cm], on the base line
    int carattereAlto;  ///< font height [pixels], negative: height of the characters, not of a row
    int decimiDiGrado;  ///< rotation, counter-clockwise
    bool centrato;      ///< about the point, else it starts there
    Colore colore;
    std::string_view carattere;  ///< typeface
    std::string_view testo;
};

/// Where a drawing appears while it is made and each time it is replayed. All positions are
/// centimetres of the sheet, y upward. A window implements it, and a record in the tests.
class SuperficieDisegno {
 public:
    virtual ~SuperficieDisegno() = default;

    /// Makes the window if there is none yet, and says what room it has.
    virtual SpazioDisegno spazio() = 0;
    /// Takes a size in pixels, clears, and shows the world window `mondo`: its left edge at the
    /// left, its top edge at the top.
    virtual void prepara(const Riquadro& mondo, double larghezza, double altezza) = 0;
    /// Marks the printable sheet by a dotted rectangle one pixel wide. No part of the drawing.
    virtual void marcaFoglio(const Riquadro& foglio, Colore colore) = 0;
    /// Width of the lines to come [pixels], at least 1.
    virtual void spessore(int pixel) = 0;
    virtual void poligono(const PoligonoPlot& poligono) = 0;
    virtual void linea(const Tratto& tratto, Colore colore) = 0;
    virtual void testo(const TestoSuperficie& testo) = 0;
    /// Brings what was drawn before the eyes of the user.
    virtual void aggiorna() = 0;
};

}  // namespace korven::plot
