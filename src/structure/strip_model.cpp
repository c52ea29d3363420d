#include "structure/strip_model.hpp"

#include "structure/material_laws.hpp"

namespace korven::structure {

double forzaSezione(const ModelloStrisce& m, double eps0, double chi) {
    double forza = 0;
    for (int i = 1; i <= nStrisce; ++i) {
        const double eps = eps0 + chi * mezzeria(m, i);
        forza += m.Ac[i] * tensioneCls(eps, m.fcd) +
                 m.As[i] * tensioneAcciaio(eps, m.fyd, m.modEacciaio);
    }
    return forza;
}

double momentoSezione(const ModelloStrisce& m, double eps0, double chi, double Nd) {
    double A = 0;
    for (int i = 1; i <= nStrisce; ++i) A += m.Ac[i] + m.As[i];
    const double q = Nd / A;
    double M = 0;
    for (int i = 1; i <= nStrisce; ++i) {
        const double y = mezzeria(m, i);
        const double eps = eps0 + chi * y;
        M += y * (m.Ac[i] * (tensioneCls(eps, m.fcd) + q) +
                  m.As[i] * (tensioneAcciaio(eps, m.fyd, m.modEacciaio) + q));
    }
    return M;
}

}  // namespace korven::structure
