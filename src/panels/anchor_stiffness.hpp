#pragma once

// From one anchor or strut to the metre of wall and back. The program holds, for each row of its
// table, the horizontal component per metre of wall and multiplies nothing itself:
//
//     k = E A cos²α / (L s)        once cos α for the part of the wall's movement that stretches
//                                  the anchor, once for the part of its force that holds the wall
//     p = F cos α / s
//
// See docs/theory.md, "Anchors and struts".

namespace korven::panels {

/// One anchor or strut of a row.
struct Ancoraggio {
    double modulo = 0;        ///< E [N/mm²], above 0
    double area = 0;          ///< A [mm²] of all its strands or bars, above 0
    double lunghezza = 0;     ///< L [m], the length that stretches, above 0
    double interasse = 0;     ///< s [m] along the wall, above 0
    double inclinazione = 0;  ///< α from the horizontal [degrees], 0 <= α < 90
};

/// k [kN/m per metre of wall].
[[nodiscard]] double rigidezzaPerMetro(const Ancoraggio& uno);

/// p [kN per metre of wall], positive as F.
/// @param forza  F along the axis of one anchor [kN]
/// @param interasse, inclinazione  as in `Ancoraggio`
[[nodiscard]] double forzaPerMetro(double forza, double interasse, double inclinazione);

/// F [kN], the way back: p s / cos α.
[[nodiscard]] double forzaDiUno(double perMetro, double interasse, double inclinazione);

/// A = n π d²/4 [mm²] of round bars of diameter d [mm].
[[nodiscard]] double areaBarre(double numero, double diametro);

/// cos α of an angle in degrees.
[[nodiscard]] double coseno(double gradi);

}  // namespace korven::panels
