#pragma once

#include <memory>

#include "shell/norms/norms_window.hpp"
#include "support/annex_ports.hpp"

namespace korven::test {

/// Two codes: one of two combinations, the second with twice the effects, and one of the first
/// alone.
inline factors::Catalogo dueNorme() {
    const factors::Combinazione uno{"U", "fonte di U", {}, {}},
        due{"D", "fonte di D", {.effetti = 2}, {}};
    factors::Catalogo catalogo{
        {{"due", "Due", "prova.txt", {uno, due}}, {"una", "Una", "prova.txt", {uno}}}, {}};
    for (factors::Norma& norma : catalogo.norme)
        for (factors::Combinazione& c : norma.combinazioni)
            c.fonti.assign(factors::vociFattori().size(), "capo 1");
    return catalogo;
}

/// What a window of the codes needs.
inline shell::PorteNorme porteNorme(base::Dialogo& dialogo) {
    return {dialogo, dueNorme, std::make_shared<SalvataggioDiProva>()};
}

}  // namespace korven::test
