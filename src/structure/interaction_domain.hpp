#pragma once

#include <cstddef>
#include <vector>

#include "project/section.hpp"

namespace korven::structure {

/// What one metre of wall carries under one axial force, by `momentiResistenti`.
struct PuntoDominio {
    double sforzoNormale = 0;  ///< as a project has it [t], positive in compression
    double Nd = 0;             ///< the force it is designed for, 1.4 times that [N]
    /// Resistances as the check takes them [N mm]: of negative curvature, which a positive moment
    /// of the wall makes, and of positive curvature.
    double MRd1 = 0, MRd2 = 0;
};

inline constexpr std::size_t massimoPuntiDominio = 33;

/// The axial forces that a section carries, each with its resistances to bending in both
/// directions, from the greatest tension to the greatest compression. All pairs of force and moment
/// between the curves of MRd1 and MRd2 are carried. The two meet at the ends, off the axis where
/// the bars differ from face to face; beyond them there is no resistance. The ends themselves,
/// where all curvatures become one, are missed by a hundred-thousandth of their force.
///
/// The points lie closer where a curve bends: from nine at equal distances, and the one of pure
/// bending, what lies beside the sharpest bend is halved until no point stands out from the line
/// between its neighbours by more than a hundredth of the largest resistance, or until there are
/// `massimoPuntiDominio`. Some 8 ms.
///
/// @param sezione  as stored (cm, N/mm2)
/// @return in the order of the forces; empty unless `sezioneValida`, and where a force or a moment
///         is not finite
/// @throws base::ErroreIndice for more bars than a pile may have
[[nodiscard]] std::vector<PuntoDominio> dominioNM(const project::Sezione& sezione);

}  // namespace korven::structure
