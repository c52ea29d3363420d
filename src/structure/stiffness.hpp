#pragma once

#include <variant>

#include "project/section.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::structure {

/// Bending stiffness EJ of one metre of wall [N mm2], from the section of the first true flag; 0
/// without one. Lengths below in mm, Es = modEacciaio, Ec = modEcls, n = Es / Ec.
///
/// Diaphragm of thickness H, steel areas per mm of wall Am and Av (0 for a face whose spacing or
/// diameter is not above 0), homogenised to concrete:
///
///     x  = [ H^2/2 + (n-1) Av (H - cv - dv/2) + (n-1) Am cm ] / [ H + (n-1) (Am + Av) ]
///     EJ = Ec 1000 [ H^3/12 + (n-1) ( Av (H - x - cv - dv/2)^2 + Am (x - cm - dm/2)^2 ) ]
///
/// with the centroid x measured from the uphill face. Its uphill term takes the cover alone,
/// without the half diameter that the downhill term has: equal faces do not give x = H/2 quite.
///
/// Steel tubes filled with concrete, radii Re and Ri, spacing i:
///
///     EJ = 1000 (pi/4) [ Ec Ri^4 + Es (Re^4 - Ri^4) ] / i
///
/// Sheet pile, outer box Be x He less inner box Bi x Hi over the length of a wave:
///
///     EJ = 1000 Es ( Be He^3/12 - Bi Hi^3/12 ) / (4 largAla + 2 base)
///     Be = base + spessAla / cosA      He = 2 altAla + spessore
///     Bi = Be - 2 spessAla / cosA      Hi = He - 2 spessore
///
/// Reinforced piles: the pile's circle, in which each bar replaces its concrete; a bar counts with
/// the component of its ring radius across the axis of bending.
///
/// Source: the uncracked section homogenised to concrete, Park & Paulay (1975) (not looked up); the
/// uphill term of x without half the diameter is this program's own
///
/// @pre a section of a type is `sezioneValida`: asserted. Then no divisor is 0; the result is not
///      finite only if the numbers overflow (lengths beyond 1e70), or if steel softer than concrete
///      makes the homogenised section vanish
[[nodiscard]] double calcolaEJ(const project::Sezione& sezione);

// The same step by step, in the symbols above; EJ in N mm2 per metre of wall.

struct EJDiaframma {
    DiaframmaMm misure{};
    double n = 0;
    double Am = 0, Av = 0;  ///< [mm2/mm]
    double x = 0;           ///< [mm]
    double Jm = 0, Jv = 0;  ///< of the steel alone about x [mm4/mm]
    double EJ = 0;
};
struct EJPali {
    PaliMm misure{};
    double EJ = 0;
};
struct EJPalancola {
    PalancolaMm misure{};
    double sAla = 0;                        ///< thickness of an inclined web along the wall [mm]
    double Be = 0, He = 0, Bi = 0, Hi = 0;  ///< [mm]
    double passo = 0;                       ///< length of a wave [mm]
    double EJ = 0;
};
struct EJPaliArmati {
    PaliArmatiMm misure{};
    int ferri = 0;      ///< that are there
    double raggio = 0;  ///< of the ring of their axes [mm]
    double Jb = 0;      ///< of all bars about the axis of bending [mm4]
    double EJ = 0;
};
using PassiEJ = std::variant<std::monostate, EJDiaframma, EJPali, EJPalancola, EJPaliArmati>;

/// @return nothing without a section; the preconditions are those of `calcolaEJ`
[[nodiscard]] PassiEJ passiEJ(const project::Sezione& sezione);

}  // namespace korven::structure
