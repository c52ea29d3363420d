#include "structure/offered_stiffness.hpp"

#include <cmath>

#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/stiffness.hpp"

namespace korven::structure {

namespace {

constexpr double nmm2PerTm2 = 10000000000;  // 1 t m2 = 1e4 N x 1e6 mm2

}  // namespace

bool troppiFerri(const project::Sezione& sezione) {
    return tipoSezione(sezione) == TipoSezione::paliArmati && sezioneValida(sezione) &&
           std::floor(sezione.armNumLong) > massimoFerri;
}

std::optional<double> rigidezzaOfferta(const project::Sezione& sezione) {
    if (!sezioneValida(sezione)) return std::nullopt;
    const double EJ = std::trunc(calcolaEJ(sezione) / nmm2PerTm2);
    return std::isfinite(EJ) ? std::optional(EJ) : std::nullopt;
}

}  // namespace korven::structure
