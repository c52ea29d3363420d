#pragma once

#include "equilibrium/stage_problem.hpp"

namespace korven::test {

/// A stage without soil, loads and restraints: n nodes at a distance h.
inline equilibrium::ProblemaFase pareteNuda(int n, double h, double EJ = 1000) {
    equilibrium::ProblemaFase p;
    p.h = h;
    p.EJ = EJ;
    p.nParete = n;
    p.nodi.resize(static_cast<std::size_t>(n));
    for (auto& nodo : p.nodi) nodo.peso = h;
    p.nodi.front().peso = p.nodi.back().peso = h / 2;
    return p;
}

}  // namespace korven::test
