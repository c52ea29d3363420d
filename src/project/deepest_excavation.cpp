#include "project/deepest_excavation.hpp"

#include <algorithm>

namespace korven::project {

double scavoMassimo(const DatiProgetto& dati) {
    double scavo = 0;
    for (int k = 1; k <= dati.nFasi; ++k) scavo = std::max(scavo, dati.profFase[k]);
    return scavo;
}

bool alPiede(const DatiProgetto& dati, double scavo) {
    return dati.lunghezzaParatia > 0 && scavo >= dati.lunghezzaParatia;
}

bool piedeScavato(const DatiProgetto& dati) { return alPiede(dati, scavoMassimo(dati)); }

}  // namespace korven::project
