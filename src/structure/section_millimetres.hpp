#pragma once

#include "project/section.hpp"

namespace korven::structure {

// The section as the calculations take it: lengths in millimetres, ten times the stored
// centimetres. A type of its own for each kind of wall, so that no stored length can slip into a
// formula unconverted.

/// Bar layer on one face of the diaphragm.
struct FacciaMm {
    double copriferro;  ///< from the face to the outer edge of the bars [mm]
    double interasse;   ///< spacing of the bars [mm]
    double diametro;    ///< diameter of the bars [mm]
};

/// A face has bars when their spacing and their diameter are both above 0; otherwise it counts as
/// unreinforced, whatever its cover.
[[nodiscard]] inline bool armata(const FacciaMm& faccia) {
    return faccia.interasse > 0 && faccia.diametro > 0;
}

/// Continuous wall.
struct DiaframmaMm {
    double spessore;  ///< H [mm]
    FacciaMm monte;
    FacciaMm valle;
};

/// Steel tubes filled with concrete.
struct PaliMm {
    double diamEst;    ///< [mm]
    double diamInt;    ///< [mm]
    double interasse;  ///< [mm]
};

/// Sheet pile, a trapezoidal wave measured on the profile's axis.
struct PalancolaMm {
    double base;      ///< width of a flange [mm]
    double largAla;   ///< half the width of an inclined web along the wall [mm]
    double altAla;    ///< half the height of an inclined web across the wall [mm]
    double spessore;  ///< thickness of the flanges [mm]
    double spessAla;  ///< thickness of the webs [mm]
};

/// Depth of the sheet pile, 2 altAla + spessore [mm].
[[nodiscard]] double altezza(const PalancolaMm& palancola);
/// Length after which the wave repeats, 4 largAla + 2 base [mm].
[[nodiscard]] double passoOnda(const PalancolaMm& palancola);
/// Thickness of an inclined web along the wall, spessAla / cos(atan(largAla / altAla)) [mm].
[[nodiscard]] double spessoreOrizzontaleAla(const PalancolaMm& palancola);

/// Reinforced concrete piles with a ring of bars. The stirrups serve the shear check alone.
struct PaliArmatiMm {
    double interasse;   ///< [mm]
    double diamPalo;    ///< [mm]
    double diamLong;    ///< diameter of the bars [mm]
    double copriferro;  ///< [mm]
    double numLong;     ///< number of bars as stored: no length, so not times ten
};

/// Radius of the ring of the bars' axes, diamPalo/2 - copriferro - diamLong/2 [mm].
[[nodiscard]] double raggioFerri(const PaliArmatiMm& pali);

inline constexpr int massimoFerri = 100000;

/// Number of bars that are really there: the largest whole number not above `numLong`. The angle
/// between two bars stays 2 pi / numLong, so a fractional count leaves a gap before the first bar.
/// @throws base::ErroreIndice above `massimoFerri`; no pile has so many, and a count out of a
///         damaged file must not keep the program busy for ever
[[nodiscard]] int numeroFerri(const PaliArmatiMm& pali);

[[nodiscard]] DiaframmaMm diaframmaMm(const project::Sezione& sezione);
[[nodiscard]] PaliMm paliMm(const project::Sezione& sezione);
[[nodiscard]] PalancolaMm palancolaMm(const project::Sezione& sezione);
[[nodiscard]] PaliArmatiMm paliArmatiMm(const project::Sezione& sezione);

}  // namespace korven::structure
