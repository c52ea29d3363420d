#include "drawings/log/depth_scale.hpp"

#include <algorithm>
#include <cassert>

namespace korven::drawings {

double bordoInferiore(double altezzaPagina) {
    assert(altezzaPagina > paginaTroppoBassa);
    return std::max(28.5 - altezzaPagina + 0.1, 0.6);
}

ScalaProfondita::ScalaProfondita(double profondita, double bordoInferiore)
    : N_(project::inCentimetri(profondita) / (20.6 - bordoInferiore)) {
    assert(profondita > 0 && bordoInferiore < 20.6);
}

double passoProfondita(double profondita) {
    if (profondita > 100) return 10;
    if (profondita > 50) return 5;
    return profondita > 20 ? 2 : 1;
}

}  // namespace korven::drawings
