#pragma once

#include <optional>

#include "project/section.hpp"
#include "structure/limit_search.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::structure {

/// Materials of the bending check, characteristic values [N/mm2].
struct MaterialiFlessione {
    double modEacciaio;
    double fyk;  ///< fyd = fyk / 1.15
    double fck;  ///< fcd = fck / 1.6; of no effect on a sheet pile
};

// The four kinds of wall. Lengths in mm, Nd in N and positive in compression, result in N mm, both
// for `bStriscia` mm of wall. They differ in how the strips are filled and in where the elongation
// limit is read.

[[nodiscard]] MomentiResistenti resistenzaDiaframma(const DiaframmaMm& d,
                                                    const MaterialiFlessione& materiali, double Nd,
                                                    double bStriscia);
[[nodiscard]] MomentiResistenti resistenzaPali(const PaliMm& p, const MaterialiFlessione& materiali,
                                               double Nd, double bStriscia);
[[nodiscard]] MomentiResistenti resistenzaPalancola(const PalancolaMm& p,
                                                    const MaterialiFlessione& materiali, double Nd,
                                                    double bStriscia);
[[nodiscard]] MomentiResistenti resistenzaPaliArmati(const PaliArmatiMm& p,
                                                     const MaterialiFlessione& materiali, double Nd,
                                                     double bStriscia);

/// One metre of wall as the bending check takes it.
struct SezioneStrisce {
    ModelloStrisce modello;
    double H = 0;  ///< depth [mm]
    PuntiAllungamento punti{};
};

/// @param sezione  as stored (cm, N/mm2); its first true flag selects the kind of wall
/// @return nothing if no flag is true
/// @pre a section of a type is `sezioneValida`: asserted
[[nodiscard]] std::optional<SezioneStrisce> sezioneStrisce(const project::Sezione& sezione);

/// Design axial force [N] of one as a project has it [t].
[[nodiscard]] double sforzoDiProgetto(double sforzoNormale);

/// Limit-state moment resistance of one metre of wall in both directions of bending.
///
/// @param sezione        as stored (cm, N/mm2); its first true flag selects the kind of wall
/// @param sforzoNormale  axial force on one metre of wall [t], positive in compression; designed
///                       for with the action factor, Nd = 1.4 x 10000 x sforzoNormale [N]
/// @param MRd            result [N mm]; stays as the caller initialised it if no flag is true
/// @pre a section of a type is `sezioneValida`: asserted
/// Source: CEN, ENV 1992-1-1 (1991), 4.3.1 (not looked up), with a concrete factor of 1.6
void momentiResistenti(const project::Sezione& sezione, double sforzoNormale,
                       MomentiResistenti& MRd);

/// The same as a run takes it: 0 both ways for a section that is not `sezioneValida`.
[[nodiscard]] MomentiResistenti resistenze(const project::Sezione& sezione, double sforzoNormale);

}  // namespace korven::structure
