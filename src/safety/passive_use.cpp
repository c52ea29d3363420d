#include "safety/passive_use.hpp"

#include "analysis/node_vector.hpp"

namespace korven::safety {

UsoPassiva usoPassiva(const equilibrium::ProblemaFase& problema,
                      const equilibrium::FaseEquilibrio& fase, double scavo) {
    UsoPassiva uso;
    double pressione = 0, limite = 0;
    bool prima = false;  // the node above is at the limit
    for (int i = 0; i < problema.nParete; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const double z = analysis::zNodo(i + 1, problema.h);
        if (!(z >= scavo)) continue;
        const equilibrium::NodoFase& nodo = problema.nodi[j];
        pressione += nodo.peso * fase.valle[j];
        limite += nodo.peso * nodo.valle.minimo;
        const bool ora = fase.stati[j].valle == analysis::StatoLato::passivo;
        if (ora && prima) uso.alLimite.back().a = z;
        if (ora && !prima) uso.alLimite.push_back({z, z});
        prima = ora;
    }
    if (limite < 0 && pressione <= 0) uso.quota = pressione / limite;
    return uso;
}

}  // namespace korven::safety
