#include "equilibrium/stage_problem.hpp"

#include <utility>

namespace korven::equilibrium {

namespace {

// The passive limit is the largest of the retained side and the lowest of the excavated one.
DatoInstabile datoInstabile(const ProblemaFase& problema, int i, bool monte, const LatoNodo& lato) {
    const auto [attivo, passivo] =
        monte ? std::pair{lato.minimo, lato.massimo} : std::pair{lato.massimo, lato.minimo};
    const bool modulo = lato.Eh > 0;
    return {.che = modulo ? Instabile::modulo : Instabile::limiti,
            .nodo = i,
            .monte = monte,
            .valore = modulo ? lato.Eh : attivo,
            .passivo = passivo,
            .profondita = problema.profondita(i)};
}

}  // namespace

DatoInstabile datoInstabile(const ProblemaFase& problema) {
    if (!(problema.EJ > 0)) return {.che = Instabile::parete, .valore = problema.EJ};
    for (std::size_t a = 0; a < problema.tiranti.size(); ++a)
        if (!(problema.tiranti[a].rigidezza >= 0))
            return {.che = Instabile::tirante,
                    .tirante = static_cast<int>(a) + 1,
                    .valore = problema.tiranti[a].rigidezza};
    for (int i = 0; i < problema.nParete; ++i) {
        const NodoFase& nodo = problema.nodi[static_cast<std::size_t>(i)];
        if (nodo.vincolato) continue;
        for (const bool monte : {true, false}) {
            const LatoNodo& lato = monte ? nodo.monte : nodo.valle;
            if (!lato.monotono()) return datoInstabile(problema, i, monte, lato);
        }
    }
    return {};
}

}  // namespace korven::equilibrium
