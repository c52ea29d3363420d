#include "dossier/limit_balance.hpp"

#include <utility>

namespace korven::dossier {

namespace {

using equilibrium::LatoNodo;
using equilibrium::Meccanismo;
using equilibrium::NodoFase;
using equilibrium::ProblemaFase;

int versoDi(const Meccanismo& moto, double z) {
    const double y = moto.spostamento(z);
    return y > 0 ? 1 : y < 0 ? -1 : 0;
}

// Soil without a modulus or limits stays as it is.
LimiteTerreno stato(const LatoNodo& lato, bool monte, int verso) {
    if (verso == 0 || lato.Eh == 0 || (lato.minimo == 0 && lato.massimo == 0))
        return LimiteTerreno::nessuno;
    return (verso > 0) == monte ? LimiteTerreno::attivo : LimiteTerreno::passivo;
}

// The soil's pressure at the point that stays is not known: its own at rest, without an arm.
double pressione(const LatoNodo& lato, int verso) {
    return verso == 0 ? lato.pressione(0) : lato.limite(verso);
}

NodoAlLimite nodoAlLimite(const NodoFase& nodo, double z, double costante, int verso) {
    NodoAlLimite n{.z = z,
                   .tratto = nodo.peso,
                   .monte = pressione(nodo.monte, verso),
                   .valle = pressione(nodo.valle, verso),
                   .acqua = nodo.acqua,
                   .costante = costante,
                   .statoMonte = stato(nodo.monte, true, verso),
                   .statoValle = stato(nodo.valle, false, verso)};
    if (verso != 0 && !nodo.vincolato)
        n.forza = n.tratto * (n.monte + n.valle + n.acqua + n.costante);
    return n;
}

// Puts what acts together by kind and side.
class Parti {
 public:
    explicit Parti(const Meccanismo& moto) : moto_(moto) {}

    void aggiungi(AzioneLimite cosa, double forza, double z, int tirante = 0) {
        const int verso = versoDi(moto_, z);
        if (forza == 0 || verso == 0) return;
        const bool sotto = moto_.traslazione || z > moto_.profondita;
        ParteAlLimite& parte = trova(cosa, sotto, tirante);
        parte.forza += forza;
        parte.spinta += forza * moto_.spostamento(z);
    }
    // A moment at the head turns the wall as a force away from the excavation below it would.
    void momentoInTesta(double M) {
        if (M == 0 || moto_.traslazione) return;
        trova(AzioneLimite::momentoTesta, false, 0).spinta -= moto_.verso * M;
    }
    [[nodiscard]] std::vector<ParteAlLimite>& tutte() { return parti_; }

 private:
    ParteAlLimite& trova(AzioneLimite cosa, bool sotto, int tirante) {
        for (ParteAlLimite& p : parti_)
            if (p.cosa == cosa && p.sotto == sotto && p.tirante == tirante) return p;
        ParteAlLimite& nuova = parti_.emplace_back();
        nuova.cosa = cosa;
        nuova.sotto = sotto;
        nuova.tirante = tirante;
        return nuova;
    }

    const Meccanismo& moto_;
    std::vector<ParteAlLimite> parti_;
};

// Those that pull with their prestress alone; of the others one that holds is no mechanism's, and
// one that is slack does nothing.
void tiranti(const ProblemaFase& problema, Parti& parti) {
    int numero = 0;
    for (const auto& t : problema.tiranti) {
        ++numero;
        if (t.nodo < 0 || t.rigidezza != 0) continue;
        if (problema.nodi[static_cast<std::size_t>(t.nodo)].vincolato) continue;
        parti.aggiungi(AzioneLimite::tirante, -t.volte * t.tiro(0), problema.profondita(t.nodo),
                       numero);
    }
}

}  // namespace

BilancioLimite bilancioLimite(const ProblemaFase& problema, const Meccanismo& moto, int fase) {
    BilancioLimite b{.fase = fase, .moto = moto, .nodi = {}, .parti = {}};
    Parti parti(b.moto);
    parti.aggiungi(AzioneLimite::forzaTesta, problema.H, 0);
    parti.momentoInTesta(problema.M);
    for (int i = 0; i < problema.n(); ++i) {
        const NodoFase& nodo = problema.nodi[static_cast<std::size_t>(i)];
        const double z = problema.profondita(i);
        const NodoAlLimite n = nodoAlLimite(nodo, z, problema.costante, versoDi(moto, z));
        if (i < problema.nParete) b.nodi.push_back(n);
        if (nodo.vincolato) continue;
        parti.aggiungi(AzioneLimite::monte, n.tratto * n.monte, z);
        parti.aggiungi(AzioneLimite::valle, n.tratto * n.valle, z);
        parti.aggiungi(AzioneLimite::acqua, n.tratto * n.acqua, z);
        parti.aggiungi(AzioneLimite::costante, n.tratto * n.costante, z);
    }
    tiranti(problema, parti);
    b.parti = std::move(parti.tutte());
    double somma = 0;
    for (const ParteAlLimite& p : b.parti) {
        b.mancante += p.spinta;
        somma += p.forza;
    }
    if (moto.traslazione) return b;
    const double piede = problema.profondita(problema.n() - 1);
    b.zRisultante = moto.profondita <= piede / 2 ? piede : 0;
    const double spostamento = moto.spostamento(b.zRisultante);
    if (spostamento != 0) b.forzaRisultante = b.mancante / spostamento;
    b.perno = b.forzaRisultante - somma;
    return b;
}

std::optional<BilancioLimite> bilancioLimite(const project::DatiProgetto& dati, int nSeg,
                                             int fase) {
    equilibrium::EquilibrioParete parete(dati, nSeg);
    for (int k = 1; k < fase; ++k) (void)parete.calcola(k);
    const equilibrium::FaseEquilibrio& ultima = parete.calcola(fase);
    if (ultima.esito != equilibrium::EsitoFase::meccanismo || !ultima.moto) return std::nullopt;
    return bilancioLimite(parete.problema(), *ultima.moto, fase);
}

}  // namespace korven::dossier
