#include "analysis/vertical_stress.hpp"

#include <cassert>

namespace korven::analysis {

namespace {

// So that a wall longer than the soil column finds its lower nodes in the last layer.
constexpr double prolungamentoUltimoStrato = 100;

}  // namespace

double fondoStrato(const project::DatiProgetto& dati, int j) {
    const double fondo = dati.profStrato[j];
    return j == dati.nStrati ? fondo + prolungamentoUltimoStrato : fondo;
}

double pesoStrato(double z, double t, double b, double w, double gammaN, double gammaSat) {
    if (z > b) {
        if (w > b) return gammaN * (b - t);
        if (w > t) return gammaN * (w - t) + gammaSat * (b - w);
        return gammaSat * (b - t);
    }
    if (z < t) return 0;
    if (w > z) return gammaN * (z - t);
    if (w > t) return gammaN * (w - t) + gammaSat * (z - w);
    return gammaSat * (z - t);
}

double pressioneAcquaNetta(double z, double faldaMonte, double faldaValle, double gammaAcqua) {
    double netta = 0;
    if (z > faldaMonte) netta += (z - faldaMonte) * gammaAcqua;
    if (z > faldaValle) netta -= (z - faldaValle) * gammaAcqua;
    return netta;
}

TensioneNodo tensioneMonte(const project::DatiProgetto& dati, double z) {
    const double w = dati.faldaMonte;
    const double gammaAcqua = dati.gammaAcqua;
    TensioneNodo nodo;
    double totale = dati.sovraccMonte;
    for (int j = 1; j <= dati.nStrati; ++j) {
        const double t = dati.profStrato[j - 1];
        const double b = fondoStrato(dati, j);
        totale += pesoStrato(z, t, b, w, dati.gammaN[j], dati.gammaSat[j]);
        if (!(t <= z && z <= b)) continue;
        double efficace = totale;
        if (w < 0)
            efficace -= z * gammaAcqua;
        else if (w <= z)
            efficace -= (z - w) * gammaAcqua;
        nodo = {j, totale, efficace};
    }
    return nodo;
}

TensioneNodo tensioneValle(const project::DatiProgetto& dati, double z, double scavo,
                           double sovraccarico) {
    assert(scavo <= z);
    const double e = scavo;
    const double w = dati.faldaValle;
    const double gammaAcqua = dati.gammaAcqua;
    int m = 1;
    while (m <= dati.nStrati && !(fondoStrato(dati, m) > e)) ++m;

    TensioneNodo nodo;
    double totale = sovraccarico;
    for (int j = m; j <= dati.nStrati; ++j) {
        const double t = j == m ? e : dati.profStrato[j - 1];  // weight from the excavation only
        const double b = fondoStrato(dati, j);
        totale += pesoStrato(z, t, b, w, dati.gammaN[j], dati.gammaSat[j]);
        if (!(t <= z && z <= b)) continue;
        double efficace = totale;
        if (w < e)
            efficace -= (z - e) * gammaAcqua;
        else if (w <= z)
            efficace -= (z - w) * gammaAcqua;
        nodo = {j, totale, efficace};
    }
    return nodo;
}

}  // namespace korven::analysis
