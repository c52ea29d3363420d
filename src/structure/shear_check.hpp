#pragma once

#include <string_view>
#include <vector>

#include "project/section.hpp"
#include "structure/partial_factors.hpp"

namespace korven::structure {

/// Shear resistances of one pile [N].
struct TaglioResistente {
    double Vrd2;  ///< of the compressed concrete struts
    double Vrd3;  ///< of the shear reinforcement, with the concrete's share
};

/// What the resistances of one pile are made of, in the letters of `verificaTaglio`; N, mm.
struct ValoriTaglio {
    double fcd = 0, fyd = 0;     ///< [N/mm2]
    double d = 0, bw = 0;        ///< [mm]
    double fctk = 0, tauRd = 0;  ///< [N/mm2]
    double k = 0;
    double Asl = 0;  ///< [mm2]
    double rhoL = 0;
    double sigmaCp = 0;  ///< [N/mm2]
    double Vrd1 = 0;     ///< share of the concrete [N]
    double nu = 0;
    double Asw = 0;    ///< [mm2]
    double passo = 0;  ///< of the stirrups [mm]
    double Vwd = 0;    ///< share of the stirrups, fyd d 0.9 Asw / passo [N]
    TaglioResistente resistente{};
};

/// @param sezione, Nsd  as for `verificaTaglio`, with its preconditions
[[nodiscard]] ValoriTaglio valoriTaglio(const project::Sezione& sezione, double Nsd);

/// Shear resistance of a reinforced concrete pile by the standard method, N and mm:
///
///     d       = 10 (armDiamPalo - armCopriferro - armDiamLong / 2)    bw = 10 armDiamPalo
///     tauRd   = 0.25 fctk / 1.6      fctk = 0.7 x 0.3 fck^(2/3)
///     k       = 1.6 - d / 1000
///     Asl     = armNumLong pi (10 armDiamLong / 2)^2                  rhoL = Asl / (d bw)
///     sigmaCp = Nsd / (pi (10 armDiamPalo / 2)^2 + Asl (modEacciaio / modEcls - 1))
///     Vrd1    = tauRd k (1.2 + 40 rhoL + 0.15 sigmaCp) bw d
///     nu      = 0.7 - fck / 200, not below 0.5
///     Vrd2    = 0.5 nu fcd bw 0.9 d
///     Asw     = 2 pi (10 armDiamStaffe / 2)^2
///     Vrd3    = Vrd1 + fyd d 0.9 Asw / (10 armPassoStaffe)
///
/// The full pile diameter is the web width. Neither k nor rhoL is bounded: k falls below 1 for d
/// above 600 mm, and below 0 for d above 1600 mm, where Vrd1 lowers Vrd3. armNumLong counts as it
/// is stored. A resistance that has no value (no effective depth) is 0.
///
/// @param sezione  as stored (cm, N/mm2)
/// @param Nsd      axial force [N], positive in compression. The report passes 0: the axial force
///                 of the project enters the bending check alone
/// @pre `sezioneValida` and `staffePresenti`: asserted
/// Source: CEN, ENV 1992-1-1 (1991), 4.3.2.3 and 4.3.2.4.3 (not looked up); concrete factor 1.6
[[nodiscard]] TaglioResistente verificaTaglio(const project::Sezione& sezione, double Nsd);

/// The shear check of one metre of wall, as the report shows it; all forces [kN/m].
struct ConfrontoTaglio {
    double Vrd2;           ///< strut resistance
    double Vrd3;           ///< shear reinforcement resistance
    double taglioMassimo;  ///< acting shear
    double fsAzioni;       ///< partial factor of the actions [-]
    double Vsd;            ///< design shear

    /// The two tests are independent, and a design shear equal to the resistance passes.
    [[nodiscard]] bool rotturaBielle() const { return Vsd > Vrd2; }
    [[nodiscard]] bool rotturaArmatura() const { return Vsd > Vrd3; }
};

/// @param resistente   resistances of one pile [N]
/// @param armInterasse pile spacing as stored [cm]
/// @param Vmax         largest absolute shear of the last stage [t/m]. Earlier stages do not count,
///                     even where their shear is larger
/// @param fsAzioni     partial factor of the actions; the report's is the fixed one
[[nodiscard]] ConfrontoTaglio confrontaTaglio(const TaglioResistente& resistente,
                                              double armInterasse, double Vmax,
                                              double fsAzioni = fsAzioniSezione);

/// The lines that a failed check puts into the report, in this order and as keys of the table of
/// texts; none when the check passes.
[[nodiscard]] std::vector<std::string_view> righeRotturaTaglio(const ConfrontoTaglio& confronto);

}  // namespace korven::structure
