#include "drawings/log/description_blocks.hpp"

namespace korven::drawings {

double altezzaBlocco(std::size_t righe, double altezzaTesto) {
    return righe == 0 ? 0 : (1.5 * static_cast<double>(righe) + 0.5) * altezzaTesto;
}

std::vector<double> disponiBlocchi(const std::vector<Blocco>& blocchi, double superiore,
                                   double inferiore) {
    std::vector<double> bordi;
    double sopra = superiore;
    for (const Blocco& blocco : blocchi) {
        sopra = sopra - blocco.piede >= blocco.altezza ? blocco.piede : sopra - blocco.altezza;
        bordi.push_back(sopra);
    }
    if (bordi.empty() || bordi.back() >= inferiore) return bordi;
    bordi.back() = inferiore;
    for (std::size_t i = bordi.size() - 1; i-- > 0;) {
        const double sotto = bordi[i + 1] + blocchi[i + 1].altezza;
        if (bordi[i] >= sotto) break;
        bordi[i] = sotto;
    }
    return bordi;
}

}  // namespace korven::drawings
