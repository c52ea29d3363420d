#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "equilibrium/newton.hpp"

namespace korven::test {

inline double massimoAssoluto(const std::vector<double>& v) {
    double m = 0;
    for (const double x : v) m = std::max(m, std::fabs(x));
    return m;
}

/// The largest force without balance of the free nodes of a stage, as a part of what is allowed:
/// 1E-9 of the largest load, and with more than 50 segments what rounding of the bending forces
/// leaves besides, 32 epsilon EJ / h^3 by the largest displacement.
inline double sbilancio(const equilibrium::ProblemaFase& p, const std::vector<double>& y) {
    double carico = std::fabs(p.H);
    for (const auto& nodo : p.nodi)
        carico = std::max(carico, nodo.peso * std::max(std::fabs(nodo.acqua + p.costante),
                                                       std::fabs(nodo.monte.massimo)));
    for (const auto& t : p.tiranti) carico = std::max(carico, t.pretensione);
    const double arrotondamento =
        32 * std::numeric_limits<double>::epsilon() * p.EJ / (p.h * p.h * p.h) * massimoAssoluto(y);
    const double ammesso = 1e-9 * carico + (p.nParete > 51 ? arrotondamento : 0);
    std::vector<double> r(y.size());
    equilibrium::Newton(p.n()).residuo(p, y, r);
    double peggiore = 0;
    for (std::size_t i = 0; i < r.size(); ++i)
        if (!p.nodi[i].vincolato) peggiore = std::max(peggiore, std::fabs(r[i]) / ammesso);
    return peggiore;
}

}  // namespace korven::test
