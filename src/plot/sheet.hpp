#pragma once

#include <string>
#include <string_view>

#include "base/table.hpp"

// The sheet of the result diagrams and of the section drawing, in cm from its lower left corner.

namespace korven::plot {

inline constexpr double larghFoglio = 19;
inline constexpr double altFoglio = 27;
inline constexpr double x0 = 1.5;          ///< left end of the frame
inline constexpr double y0 = 2;            ///< lower end of the frame
inline constexpr double larghQuadro = 17;  ///< frame width
inline constexpr double altQuadro = 20;    ///< frame height
inline constexpr double xCentro = x0 + larghQuadro / 2;

/// The place of a heading line: its middle x, its base line y, the height of its characters.
struct PostoTitolo {
    double x = 0, y = 0, altezza = 0;
};

/// Where this sheet has heading line `i`, 1 to 6.
[[nodiscard]] PostoTitolo titoloFoglio(int i);

/// Starts a drawing on that sheet with its head: the first heading line large in pen 1, the other
/// five in pen 2 below it, and the title of the drawing in pen 3 above the frame.
/// @param titolo  in the language in force
void apriFoglio(const base::Tabella<std::string, 6>& titoli, std::string_view titolo);

/// A straight line from (x1, y1) to (x2, y2) with the pen in use.
void linea(double x1, double y1, double x2, double y2);

/// A circle as a closed polyline that nowhere leaves it by more than a hundredth of a millimetre;
/// nothing for a radius of 0.
void disegnaCerchio(double x, double y, double raggio);

/// A text centred on x, its base line at y.
void testoCentrato(double x, double y, double altezza, std::string_view testo, double angolo = 0);

/// A text whose base line starts at (x, y).
void testoDa(double x, double y, double altezza, std::string_view testo, double angolo = 0);

/// A text whose base line ends at (x, y).
void testoFinoA(double x, double y, double altezza, std::string_view testo);

}  // namespace korven::plot
