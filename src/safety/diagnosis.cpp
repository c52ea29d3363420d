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

std::string_view parola(EsitoFase esito) {
    return esito == EsitoFase::equilibrio ? "equilibrio" : parola(causa(esito));
}

Ostacolo ostacolo(const analysis::FineCorsa& fine) {
    if (fine.modo == analysis::ModoFine::singolare) return Ostacolo::singolare;
    return fine.iterazioni < iterazioniOscillazione ? Ostacolo::limite : Ostacolo::oscillazione;
}

Diagnosi diagnosi(const project::DatiProgetto& dati, int nSeg,
                  const equilibrium::EquilibrioParete& parete,
                  const equilibrium::FaseEquilibrio& fase) {
    Diagnosi d = diagnosiSenzaLunghezza(dati, parete.problema(), fase);
    if (!d.moto) return d;
    const LunghezzaMinima minima = lunghezzaMinima(dati, nSeg);
    if (minima.lunghezza && *minima.lunghezza > dati.lunghezzaParatia)
        d.lunghezza = minima.lunghezza;
    return d;
}

Diagnosi diagnosiSenzaLunghezza(const project::DatiProgetto& dati,
                                const equilibrium::ProblemaFase& problema,
                                const equilibrium::FaseEquilibrio& fase) {
    assert(!fase.rifiuto);
    Diagnosi d{.causa = causa(fase.esito),
               .fase = fase.fase,
               .paratia = dati.lunghezzaParatia,
               .moto = fase.moto,
               .instabile = fase.instabile,
               .newton = fase.newton};
    if (d.moto) d.parti = partiAlLimite(problema, *d.moto);
    if (d.causa == Causa::oscilla)
        d.spostamento = std::fabs(equilibrium::estremi(fase, problema.h).spostamento.valore);
    return d;
}

Diagnosi diagnosi(const project::DatiProgetto& dati, int nSeg, int fase) {
    equilibrium::EquilibrioParete parete(dati, nSeg);
    Diagnosi chiesta;
    for (int k = 1; k <= dati.nFasi; ++k) {
        const equilibrium::FaseEquilibrio& f = parete.calcola(k);
        if (k > fase && f.rifiuto) break;
        if (f.esito != EsitoFase::equilibrio) return diagnosi(dati, nSeg, parete, f);
        if (k == fase) chiesta = diagnosi(dati, nSeg, parete, f);
    }
    return chiesta;
}

}  // namespace korven::safety
