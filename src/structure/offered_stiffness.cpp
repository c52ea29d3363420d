#include "structure/offered_stiffness.hpp"

#include <cmath>

#include "project/units.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/stiffness.hpp"

namespace korven::structure {

bool troppiFerri(const project::Sezione& sezione) {
    return tipoSezione(sezione) == TipoSezione::paliArmati && sezioneValida(sezione) &&
           std::floor(sezione.armNumLong) > massimoFerri;
}

bool sezioneCalcolabile(const project::Sezione& sezione) {
    return sezioneValida(sezione) && !troppiFerri(sezione);
}

std::optional<double> rigidezzaOfferta(const project::Sezione& sezione) {
    if (!sezioneValida(sezione)) return std::nullopt;
    const double EJ = std::trunc(calcolaEJ(sezione) / project::newtonMillimetri2);
    return std::isfinite(EJ) ? std::optional(EJ) : std::nullopt;
}

}  // namespace korven::structure
