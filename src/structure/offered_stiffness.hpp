#pragma once

#include <optional>

#include "project/section.hpp"

namespace korven::structure {

/// True for a valid section of reinforced piles with more bars than `massimoFerri`: all that
/// a run asks of it would raise an ErroreIndice, whether or not EJ is typed.
[[nodiscard]] bool troppiFerri(const project::Sezione& sezione);

/// True for a section that stiffness and resistances can be computed of.
[[nodiscard]] bool sezioneCalcolabile(const project::Sezione& sezione);

/// Stiffness that a section offers for `rigidezzaEJ`: `calcolaEJ` cut to whole t m2 per metre of
/// wall. A section below 1 t m2 offers 0.
/// @return nothing unless `sezioneValida`, nor for a stiffness that is not finite
/// @throws base::ErroreIndice for more bars than `massimoFerri`
[[nodiscard]] std::optional<double> rigidezzaOfferta(const project::Sezione& sezione);

}  // namespace korven::structure
