#pragma once

#include "base/dialogo.hpp"
#include "project/section.hpp"
#include "structure/bending_resistance.hpp"

namespace korven::analysis {

/// Before a run: takes what the structural section has to say about the wall.
///
/// Nothing happens unless `structure::sezioneValida`. Then the moment resistances are computed, and
/// `structure::rigidezzaOfferta` is taken for `rigidezzaEJ`: without a question when `rigidezzaEJ`
/// is 0, after a yes when the two differ. The question comes back at every run for as long as they
/// differ. An offer of 0 leaves an undefined stiffness undefined.
///
/// @param sezione        the section as stored (cm, N/mm2)
/// @param sforzoNormale  axial force on one metre of wall [t], positive in compression
/// @param rigidezzaEJ    bending stiffness of one metre of wall [t m2], 0: not yet given; updated
/// @param MRd            moment resistances, as `momentiResistenti` leaves them; untouched unless
///                       the section is valid
/// @param dialogo        asks the question; `annulla` counts as no
void aggiornaEJ(const project::Sezione& sezione, double sforzoNormale, double& rigidezzaEJ,
                structure::MomentiResistenti& MRd, base::Dialogo& dialogo);

}  // namespace korven::analysis
