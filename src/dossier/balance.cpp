#include "dossier/balance.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "live/envelope.hpp"

namespace korven::dossier {

namespace {

using equilibrium::FaseEquilibrio;
using equilibrium::NodoFase;
using equilibrium::ProblemaFase;

void pressioni(const ProblemaFase& problema, const FaseEquilibrio& fase, BilancioFase& b) {
    for (int i = 0; i < problema.nParete; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const bool estremo = i == 0 || i + 1 == problema.nParete;
        const double lungo = estremo ? problema.h / 2 : problema.h, z = problema.profondita(i);
        b.monte.aggiungi(lungo * fase.monte[j], z);
        b.valle.aggiungi(lungo * fase.valle[j], z);
        b.acqua.aggiungi(lungo * fase.acqua[j], z);
        b.costante.aggiungi(lungo * fase.costante, z);
        b.oltrePiede.aggiungi((problema.nodi[j].peso - lungo) * live::pressioneNetta(fase, j), z);
    }
}

// Under the spring of a restraint an anchor keeps its constant part alone.
void tiranti(const ProblemaFase& problema, const std::vector<double>& y, BilancioFase& b) {
    for (const auto& t : problema.tiranti) {
        Risultante& r = b.tiranti.emplace_back();
        if (t.nodo < 0) continue;
        const auto j = static_cast<std::size_t>(t.nodo);
        r.aggiungi(-t.volte * t.tiro(problema.nodi[j].vincolato ? 0 : y[j]),
                   problema.profondita(t.nodo));
    }
}

// The force of a restraint; the node that a fixed toe adds turns the wall about its toe.
void vincoli(const ProblemaFase& problema, const std::vector<double>& y, BilancioFase& b) {
    const int piede = problema.nParete - 1;
    for (int i = 0; i < problema.n(); ++i) {
        const auto j = static_cast<std::size_t>(i);
        const NodoFase& nodo = problema.nodi[j];
        if (!nodo.vincolato) continue;
        const double F = -problema.molla(nodo) * y[j];
        const double z = problema.profondita(std::min(i, piede));
        (i == 0 ? b.cerniera : b.piede).aggiungi(F, z);
        b.incastro.momento += F * (problema.profondita(i) - z);
    }
}

template <class Fai>
void perParte(const BilancioFase& b, const Fai& fai) {
    for (const Risultante* r : {&b.testa, &b.monte, &b.valle, &b.acqua, &b.costante, &b.oltrePiede,
                                &b.cerniera, &b.piede, &b.incastro})
        fai(*r);
    for (const Risultante& r : b.tiranti) fai(r);
}

}  // namespace

Risultante BilancioFase::massima() const {
    Risultante m;
    perParte(*this, [&](const Risultante& r) {
        m.forza = std::max(m.forza, std::fabs(r.forza));
        m.momento = std::max(m.momento, std::fabs(r.momento));
    });
    return m;
}

BilancioFase bilancio(const ProblemaFase& problema, const std::vector<double>& y,
                      const FaseEquilibrio& fase) {
    assert(fase.esito == equilibrium::EsitoFase::equilibrio);
    BilancioFase b;
    b.fase = fase.fase;
    b.passo = problema.h;
    // A positive moment at the head turns the wall as a force away from the excavation would.
    b.testa = {.forza = problema.H, .momento = -problema.M};
    pressioni(problema, fase, b);
    tiranti(problema, y, b);
    vincoli(problema, y, b);
    perParte(b, [&](const Risultante& r) { b.resto += r; });
    return b;
}

std::vector<BilancioFase> bilanci(const project::DatiProgetto& dati, int nSeg, int fasi) {
    std::vector<BilancioFase> tutti;
    if (fasi < 1) return tutti;
    equilibrium::EquilibrioParete parete(dati, nSeg);
    for (int k = 1; k <= fasi; ++k) {
        const FaseEquilibrio& fase = parete.calcola(k);
        tutti.push_back(bilancio(parete.problema(), parete.spostamenti(), fase));
    }
    return tutti;
}

}  // namespace korven::dossier
