#include "safety/diagnosis.hpp"

#include <cassert>
#include <cmath>

#include "equilibrium/extremes.hpp"
#include "safety/shortest_wall.hpp"

namespace korven::safety {

namespace {

using equilibrium::EsitoFase;

Causa causa(EsitoFase esito) {
    switch (esito) {
        case EsitoFase::meccanismo:
            return Causa::meccanismo;
        case EsitoFase::nonDefinito:
            return Causa::nonDefinito;
        case EsitoFase::nessunNumero:
            return Causa::nessunNumero;
        case EsitoFase::equilibrio:
            break;
    }
    return Causa::oscilla;
}

}  // namespace

std::string_view parola(Causa causa) {
    switch (causa) {
        case Causa::eseguito:
            return "eseguito";
        case Causa::rifiutato:
            return "rifiutato";
        case Causa::meccanismo:
            return "meccanismo";
        case Causa::oscilla:
            return "oscilla";
        case Causa::fermato:
            return "fermato";
        case Causa::nonDefinito:
            return "non_definito";
        case Causa::nessunNumero:
            return "nessun_numero";
    }
    return {};
}

Diagnosi diagnosi(const project::DatiProgetto& dati, int nSeg, int fase) {
    equilibrium::EquilibrioParete parete(dati, nSeg);
    const equilibrium::FaseEquilibrio* f = nullptr;
    for (int k = 1; k <= fase; ++k) {
        f = &parete.calcola(k);
        assert(!f->rifiuto);
        if (f->esito != EsitoFase::equilibrio) break;
    }
    assert(f);
    Diagnosi d;
    d.causa = causa(f->esito);
    d.fase = f->fase;
    d.moto = f->moto;
    d.instabile = f->instabile;
    if (d.causa == Causa::meccanismo) {
        const LunghezzaMinima minima = lunghezzaMinima(dati, nSeg);
        if (minima.lunghezza && *minima.lunghezza > dati.lunghezzaParatia)
            d.lunghezza = minima.lunghezza;
    }
    if (d.causa == Causa::oscilla)
        d.spostamento = std::fabs(equilibrium::estremi(*f, parete.problema().h).spostamento.valore);
    return d;
}

}  // namespace korven::safety
