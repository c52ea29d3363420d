#include "equilibrium/limit_parts.hpp"

namespace korven::equilibrium {

namespace {

// Adds a node to a list of stretches, to the last of them if it follows on.
void aggiungi(double z, double h, std::vector<Tratto>& tratti) {
    if (!tratti.empty() && z - tratti.back().a < 1.5 * h)
        tratti.back().a = z;
    else
        tratti.push_back({z, z});
}

// Soil that moves towards a limit: without a modulus it stays as it is.
bool terreno(const LatoNodo& lato) {
    return lato.Eh != 0 && (lato.minimo != 0 || lato.massimo != 0);
}

}  // namespace

PartiAlLimite partiAlLimite(const ProblemaFase& problema, const Meccanismo& moto) {
    PartiAlLimite parti;
    for (int i = 0; i < problema.nParete; ++i) {
        const NodoFase& nodo = problema.nodi[static_cast<std::size_t>(i)];
        const double z = problema.profondita(i);
        const double y = moto.spostamento(z);
        if (y == 0 || nodo.vincolato) continue;
        if (terreno(nodo.monte))
            aggiungi(z, problema.h, y > 0 ? parti.monteAttivo : parti.montePassivo);
        if (terreno(nodo.valle))
            aggiungi(z, problema.h, y > 0 ? parti.vallePassivo : parti.valleAttivo);
    }
    for (std::size_t a = 0; a < problema.tiranti.size(); ++a) {
        const TiranteFase& t = problema.tiranti[a];
        if (t.nodo < 0 || t.compressione || t.rigidezza == 0) continue;
        if (moto.spostamento(problema.profondita(t.nodo)) < 0)
            parti.tirantiLenti.push_back(static_cast<int>(a) + 1);
    }
    return parti;
}

}  // namespace korven::equilibrium
