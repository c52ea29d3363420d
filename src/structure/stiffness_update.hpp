#pragma once

#include "base/dialogo.hpp"
#include "project/section.hpp"
#include "structure/bending_resistance.hpp"

namespace korven::structure {

/// Before a run: takes what the structural section has to say about the wall.
///
/// Nothing happens unless `sezioneValida`. Then the moment resistances are computed, and the
/// stiffness of the section, cut to whole t m2, is offered for `rigidezzaEJ`: taken without a
/// question when `rigidezzaEJ` is 0, after a yes when the two differ. The question comes back at
/// every run for as long as they differ. A section below 1 t m2 offers 0, so that an undefined
/// stiffness stays undefined. A stiffness that is not finite is not offered.
///
/// @param sezione        the section as stored (cm, N/mm2)
/// @param sforzoNormale  axial force on one metre of wall [t], positive in compression
/// @param rigidezzaEJ    bending stiffness of one metre of wall [t m2], 0: not yet given; updated
/// @param MRd            moment resistances, as `momentiResistenti` leaves them; untouched unless
///                       the section is valid
/// @param dialogo        asks the question; `annulla` counts as no
void aggiornaEJ(const project::Sezione& sezione, double sforzoNormale, double& rigidezzaEJ,
                MomentiResistenti& MRd, base::Dialogo& dialogo);

}  // namespace korven::structure
