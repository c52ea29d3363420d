#include "structure/material_laws.hpp"

namespace korven::structure {

double tensioneCls(double deformazione, double fcd) {
    if (deformazione >= 0) return 0;
    if (deformazione >= -0.002)
        return 0.85 * fcd * (1000 * deformazione) * (1 + 250 * deformazione);
    return -0.85 * fcd;
}

double tensioneAcciaio(double deformazione, double fyd, double modEacciaio) {
    const double snervamento = fyd / modEacciaio;
    if (deformazione < -snervamento) return -fyd;
    if (deformazione > snervamento) return fyd;
    return deformazione * modEacciaio;
}

}  // namespace korven::structure
