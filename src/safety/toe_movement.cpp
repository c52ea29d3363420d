#include "safety/toe_movement.hpp"

#include <algorithm>
#include <cmath>

namespace korven::safety {

MotoPiede motoPiede(const equilibrium::ProblemaFase& problema, const std::vector<double>& y) {
    const auto piede = static_cast<std::size_t>(problema.nParete - 1);
    MotoPiede moto;
    moto.spostamento = y[piede];
    if (problema.n() == problema.nParete) return moto;
    double massima = 0;  // times the step, as the next
    for (std::size_t i = 0; i <= piede; ++i)
        massima = std::max(massima, std::fabs(y[i + 1] - y[i]));
    if (massima > 0) moto.cedimento = std::fabs(y[piede + 1] - y[piede]) / massima;
    return moto;
}

}  // namespace korven::safety
