#include "equilibrium/statics.hpp"

#include <cmath>

namespace korven::equilibrium {

namespace {

// Anchors and restraint of node i, which act on the point itself.
double forzaNelNodo(const ProblemaFase& problema, const std::vector<double>& y, int i) {
    const auto j = static_cast<std::size_t>(i);
    const NodoFase& nodo = problema.nodi[j];
    double forza = i == 0 ? problema.H : 0;
    for (const TiranteFase& t : problema.tiranti)
        // Under the spring of a restraint an anchor keeps its constant part alone.
        if (t.nodo == i) forza -= t.volte * t.tiro(nodo.vincolato ? 0 : y[j]);
    if (nodo.vincolato) forza -= problema.molla(nodo) * y[j];
    return forza;
}

}  // namespace

double maggiore(double sopra, double sotto) {
    return std::fabs(sotto) > std::fabs(sopra) ? sotto : sopra;
}

void statica(const ProblemaFase& problema, const std::vector<double>& y, FaseEquilibrio& fase) {
    double M = -problema.M;
    double T = 0;  // just above the node
    for (int i = 0; i < problema.nParete; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const double pressione = fase.monte[j] + fase.valle[j] + fase.acqua[j] + fase.costante;
        const double mezzo = pressione * problema.h / 2;
        if (i > 0) T -= mezzo;
        const double sotto = T - forzaNelNodo(problema, y, i);
        fase.taglioSopra[j] = i == 0 ? sotto : T;
        fase.taglioSotto[j] = i + 1 < problema.nParete ? sotto : T;
        fase.taglio[j] = maggiore(fase.taglioSopra[j], fase.taglioSotto[j]);
        fase.momento[j] = M;
        T = sotto - mezzo;  // constant between two nodes
        M += T * problema.h;
    }
}

}  // namespace korven::equilibrium
