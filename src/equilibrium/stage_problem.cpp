#include "equilibrium/stage_problem.hpp"

namespace korven::equilibrium {

DatoInstabile datoInstabile(const ProblemaFase& problema) {
    if (!(problema.EJ > 0)) return {Instabile::parete};
    for (std::size_t a = 0; a < problema.tiranti.size(); ++a)
        if (!(problema.tiranti[a].rigidezza >= 0))
            return {Instabile::tirante, 0, true, static_cast<int>(a) + 1};
    for (int i = 0; i < problema.nParete; ++i) {
        const NodoFase& nodo = problema.nodi[static_cast<std::size_t>(i)];
        if (nodo.vincolato) continue;
        for (const bool monte : {true, false}) {
            const LatoNodo& lato = monte ? nodo.monte : nodo.valle;
            if (!lato.monotono())
                return {lato.Eh > 0 ? Instabile::modulo : Instabile::limiti, i, monte};
        }
    }
    return {};
}

}  // namespace korven::equilibrium
