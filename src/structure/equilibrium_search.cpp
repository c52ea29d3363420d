#include "structure/equilibrium_search.hpp"

#include <cassert>
#include <cmath>

namespace korven::structure {

namespace {

constexpr double tolleranzaForza = 1;  // N

}  // namespace

double cercaDeformazione(const ModelloStrisce& m, int k, double chi, double Nd) {
    assert((k == 1 || k == -1) && k * chi >= 0);
    const double D = nStrisce * m.dy * chi;
    double inferiore = k == 1 ? -0.01 - D : -0.01;
    double superiore = k == 1 ? 0.01 : 0.01 - D;
    double fLo = forzaSezione(m, inferiore, chi);
    double fHi = forzaSezione(m, superiore, chi);
    double eps0 = 0;
    bool restringibile = true;
    do {
        eps0 = (inferiore + superiore) / 2;
        // With very large areas the force may jump by more than the tolerance from one double to
        // the next; the search then ends at the bracket that can't be halved any more.
        restringibile = inferiore < eps0 && eps0 < superiore;
        const double fMid = forzaSezione(m, eps0, chi);
        if ((fMid + Nd) * (fLo + Nd) <= 0) {
            superiore = eps0;
            fHi = fMid;
        } else {
            inferiore = eps0;
            fLo = fMid;
        }
    } while (restringibile && !(std::abs(fLo - fHi) < tolleranzaForza));
    return eps0;
}

bool inEquilibrio(const ModelloStrisce& m, double eps0, double chi, double Nd) {
    return std::abs(forzaSezione(m, eps0, chi) + Nd) < tolleranzaForza;
}

}  // namespace korven::structure
