#pragma once

namespace korven::project {

/// The two sides of the wall: the retained ground and the excavated one.
enum class Lato { monte, valle };

/// The structural section of the wall. Lengths are stored in centimetres and shown in millimetres;
/// moduli and strengths are N/mm2 everywhere. Exactly one of the four type flags is meant to be
/// true; should two be, the first in the order of this struct's `tipo...` members decides.
struct Sezione {
    bool tipoDiaframma = false;   ///< continuous diaphragm wall
    bool tipoPali = false;        ///< side-by-side tubes filled with concrete
    bool tipoPalancola = false;   ///< sheet pile
    bool tipoPaliArmati = false;  ///< side-by-side reinforced concrete piles

    double modEcls = 0;      ///< elastic modulus of concrete [N/mm2]
    double modEacciaio = 0;  ///< elastic modulus of steel [N/mm2]
    double fck = 0;          ///< characteristic strength of concrete [N/mm2]
    double fyk = 0;          ///< characteristic yield strength of steel [N/mm2]

    double copriferroMonte = 0;    ///< cover, uphill face [cm]
    double copriferroValle = 0;    ///< cover, downhill face [cm]
    double interasseMonte = 0;     ///< bar spacing, uphill face [cm]
    double interasseValle = 0;     ///< bar spacing, downhill face [cm]
    double diametroMonte = 0;      ///< bar diameter, uphill face [cm]
    double diametroValle = 0;      ///< bar diameter, downhill face [cm]
    double spessoreDiaframma = 0;  ///< wall thickness [cm]

    double paliDiamEst = 0;    ///< outer diameter [cm]
    double paliDiamInt = 0;    ///< inner diameter [cm]
    double paliInterasse = 0;  ///< spacing [cm]

    double palancolaBase = 0;      ///< width of the flange between the webs [cm]
    double palancolaLargAla = 0;   ///< half the width of an inclined web along the wall [cm]
    double palancolaAltAla = 0;    ///< half the height of an inclined web across the wall [cm]
    double palancolaSpessore = 0;  ///< thickness of the flange [cm]
    double palancolaSpessAla = 0;  ///< thickness of the webs [cm]

    double armInterasse = 0;    ///< pile spacing [cm]
    double armDiamLong = 0;     ///< diameter of the longitudinal bars [cm]
    double armDiamPalo = 0;     ///< pile diameter [cm]
    double armPassoStaffe = 0;  ///< stirrup spacing [cm]
    double armDiamStaffe = 0;   ///< stirrup diameter [cm]
    /// Number of longitudinal bars as the calculations take it. The editors and the report show ten
    /// times this number, because it passes through the same factor as the lengths.
    double armNumLong = 0;
    double armCopriferro = 0;  ///< cover of the longitudinal bars [cm]

    bool operator==(const Sezione&) const = default;
};

/// The type flags in the order in which they are asked: the first that is true decides.
inline constexpr bool Sezione::*tipiSezione[] = {&Sezione::tipoDiaframma, &Sezione::tipoPali,
                                                 &Sezione::tipoPalancola, &Sezione::tipoPaliArmati};

}  // namespace korven::project
