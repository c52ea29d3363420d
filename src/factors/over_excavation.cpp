#include "factors/over_excavation.hpp"

#include <algorithm>

#include "analysis/anchors_in_place.hpp"

namespace korven::factors {

namespace {

// Depth of the lowest support above the excavation of stage k; the top of the wall without one,
// where the hinge of the head is too.
double sostegnoInferiore(const project::DatiProgetto& dati, int k) {
    double z = 0;
    for (int a = 1; a <= analysis::tirantiInOpera(dati, k); ++a)
        if (dati.profTirante[a] < dati.profFase[k]) z = std::max(z, dati.profTirante[a]);
    return z;
}

}  // namespace

double scavoImprevisto(const project::DatiProgetto& dati, int k, const Fattori& fattori) {
    const double altezza = dati.profFase[k] - sostegnoInferiore(dati, k);
    return std::clamp(fattori.scavoQuota * altezza, 0.0, fattori.scavoMassimo);
}

double scavaDiPiu(project::DatiProgetto& dati, int k, const Fattori& fattori) {
    const double inPiu = scavoImprevisto(dati, k, fattori);
    const double previsto = dati.profFase[k];
    dati.profFase[k] = previsto + inPiu;
    if (dati.faldaFase[k] >= previsto)
        dati.faldaFase[k] = std::max(dati.faldaFase[k], dati.profFase[k]);
    return inPiu;
}

}  // namespace korven::factors
