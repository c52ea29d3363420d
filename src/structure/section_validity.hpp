#pragma once

#include <vector>

#include "project/section.hpp"

namespace korven::structure {

/// True when cover, spacing and bar diameter of that face of the diaphragm are all above 0.
[[nodiscard]] bool facciaCompleta(const project::Sezione& sezione, project::Lato lato);

/// True when the section is of reinforced piles and both stirrup fields are above 0: only then is
/// there a shear check. Says nothing about the other fields.
[[nodiscard]] bool staffePresenti(const project::Sezione& sezione);

/// True when the section, taken as its first true flag says, is fully defined: every dimension and
/// material that its stiffness and its bending check need is above 0 (strictly). A diaphragm needs
/// a complete bar layer on one face at least; a sheet pile needs nothing of concrete; the stirrups
/// are never asked for. No true flag: false.
///
/// Stiffness, bending and shear are computed only after this test.
[[nodiscard]] bool sezioneValida(const project::Sezione& sezione);

/// The fields that `sezioneValida` asks for and that are not above 0; of a diaphragm without a
/// complete face those of the face that lacks fewest, of the earth's where both lack as many. Empty
/// for a section without a type.
[[nodiscard]] std::vector<double project::Sezione::*> campiMancanti(
    const project::Sezione& sezione);

/// The milder test by which the report decides whether it shows the section: as `sezioneValida`,
/// but side-by-side piles may lack `paliDiamInt`. Such piles are shown with resistances of 0, since
/// the run has computed none.
[[nodiscard]] bool sezioneDefinita(const project::Sezione& sezione);

}  // namespace korven::structure
