#include "analysis/plastic_iteration.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/solver/linear_system.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

namespace {

struct Contributo {
    StatoLato stato;
    double p, k;
};

Contributo latoMonte(double riposo, double Eh, double y, const PressioniLimite& limiti) {
    const double prova = riposo + y * Eh;
    if (prova < limiti.attiva) return {StatoLato::attivo, limiti.attiva, 0};
    if (prova > limiti.passiva) return {StatoLato::passivo, limiti.passiva, 0};
    return {StatoLato::elastico, riposo, Eh};
}

// Pressures of the excavated side are negative, its passive limit the lowest of all: hence the
// other order of the tests.
Contributo latoValle(double riposo, double Eh, double y, const PressioniLimite& limiti) {
    const double prova = riposo + y * Eh;
    if (prova < limiti.passiva) return {StatoLato::passivo, limiti.passiva, 0};
    if (prova > limiti.attiva) return {StatoLato::attivo, limiti.attiva, 0};
    return {StatoLato::elastico, riposo, Eh};
}

void azzera(VettoreNodi& vettore, int quanti) {
    for (int i = 1; i <= quanti; ++i) vettore[i] = 0;
}

// Lays the restraints over the springs of their nodes. Returns how many nodes the system has.
int applicaVincoli(ArraysCorsa& corsa) {
    if (corsa.vincolo.cernieraTesta) corsa.kNodo[1] = kVincolo;
    if (corsa.vincolo.bloccoPiede) corsa.kNodo[corsa.nNodi] = kVincolo;
    if (!corsa.vincolo.incastroPiede) return corsa.nNodi;
    // A second stiff spring one step below the toe keeps the slope at the toe at 0.
    corsa.kNodo[corsa.nNodi + 1] = kVincolo;
    return corsa.nNodi + 1;
}

void aggiornaMomenti(const project::DatiProgetto& dati, ArraysCorsa& corsa) {
    const int n = corsa.nNodi;
    const double h = corsa.passoNodi;
    VettoreNodi& M = corsa.momentoNodo;
    const VettoreNodi& y = corsa.yNodo;
    M[1] = -dati.momentoTesta;
    // From the moments of the iteration before, which are still there.
    M[n] = corsa.vincolo.incastroPiede ? 2 * M[n - 1] - M[n - 2] : 0;
    for (int i = 2; i <= n - 1; ++i)
        M[i] = (-corsa.EJNodo[i] / (h * h)) * (y[i - 1] + y[i + 1] - 2 * y[i]);
}

}  // namespace

void classificaNodi(const project::DatiProgetto& dati, ArraysCorsa& corsa) {
    const StatoSuolo& s = corsa.suolo;
    corsa.stati.resize(static_cast<std::size_t>(corsa.nNodi));
    for (int i = 1; i <= corsa.nNodi; ++i) {
        const double y = corsa.yNodo[i];
        corsa.pNodo[i] = s.acquaNetta[i] + dati.pressioneOrizz;
        corsa.kNodo[i] = 0;
        const auto monte = latoMonte(s.sigmaVm[i] * s.k0m[i], s.Ehm[i], y, s.limitiM[i]);
        corsa.pNodo[i] += monte.p;
        corsa.kNodo[i] += monte.k;
        const auto valle = latoValle(s.sigmaVv[i] * s.k0v[i], s.Ehv[i], y, s.limitiV[i]);
        corsa.pNodo[i] += valle.p;
        corsa.kNodo[i] += valle.k;
        corsa.stati[static_cast<std::size_t>(i - 1)] = {monte.stato, valle.stato};
    }
}

void applicaTiranti(const project::DatiProgetto& dati, ArraysCorsa& corsa) {
    corsa.tiranti.clear();
    for (int a = 1; a <= corsa.nTirantiAttivi; ++a) {
        const int m = nodoTirante(dati.profTirante[a], corsa.passoNodi);
        const bool sullaParete = m >= 1 && m <= corsa.nNodi;
        const double y = sullaParete ? corsa.yNodo[m] : 0;
        const double rig = dati.rigTirante[a];
        const double pret = dati.pretTirante[a];
        using project::TipoTirante;
        const bool agisce = (corsa.yTirante[a] - y) * rig <= pret ||
                            dati.tipoTirante[a] == TipoTirante::trazioneCompressione;
        corsa.tiranti.push_back({m, agisce});
        if (!agisce || !sullaParete) continue;
        const double f = (m == 1 || m == corsa.nNodi ? 2 : 1) / corsa.passoNodi;
        corsa.pNodo[m] -= (pret - rig * corsa.yTirante[a]) * f;
        corsa.kNodo[m] -= rig * f;
    }
}

int preparaSistema(const project::DatiProgetto& dati, ArraysCorsa& corsa) {
    // Only the cells of the wall's own nodes are cleared. Those that a fixed toe adds keep what the
    // last solve left in them wherever assembly does not write.
    corsa.matriceA.azzera(2 * corsa.nNodi);
    azzera(corsa.termineB, 2 * corsa.nNodi);
    azzera(corsa.soluzioneX, 2 * corsa.nNodi);
    const int n = applicaVincoli(corsa);
    assembla({n, corsa.passoNodi, &corsa.EJNodo, &corsa.pNodo, &corsa.kNodo, dati.forzaTesta,
              dati.momentoTesta},
             corsa.matriceA, corsa.termineB);
    return n;
}

bool risolviIterazione(const project::DatiProgetto& dati, ArraysCorsa& corsa) {
    const int n = preparaSistema(dati, corsa);
    const int celleNonAzzerate = 2 * (n - corsa.nNodi);
    if (RisolviSistema(2 * n, corsa.matriceA, corsa.termineB, corsa.soluzioneX, celleNonAzzerate) ==
        EsitoSistema::singolare)
        return false;

    for (int i = 1; i <= n; ++i) {
        corsa.yNodo[i] = corsa.soluzioneX[n + i];
        corsa.taglioNodo[i] = corsa.soluzioneX[i];
    }
    aggiornaMomenti(dati, corsa);
    return true;
}

EstremiIterazione estremiIterazione(const ArraysCorsa& corsa) {
    EstremiIterazione e;
    for (int i = 1; i <= corsa.nNodi; ++i) {
        const double M = corsa.momentoNodo[i];
        e.yMax = std::max(e.yMax, std::fabs(corsa.yNodo[i]));
        e.mMax = std::max(e.mMax, std::fabs(M));
        e.mMaxFase = std::max(e.mMaxFase, M);
        e.mMinFase = std::min(e.mMinFase, M);
    }
    return e;
}

bool convergenza(ArraysCorsa& corsa) {
    bool ferma = true;
    for (int i = 1; i <= corsa.nNodi; ++i) {
        if (std::fabs(corsa.yNodo[i] - corsa.yPrec[i]) > tolleranzaSpostamento) ferma = false;
        corsa.yPrec[i] = corsa.yNodo[i];
    }
    return ferma;
}

}  // namespace korven::analysis
