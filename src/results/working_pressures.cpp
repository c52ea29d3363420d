#include "results/working_pressures.hpp"

#include <algorithm>

#include "analysis/pressure_coefficients.hpp"
#include "analysis/vertical_stress.hpp"

namespace korven::results {

Resistenza resistenzaNodo(const project::DatiProgetto& dati, double z) {
    Resistenza terreno;
    for (int j = 1; j <= dati.nStrati; ++j)
        if (dati.profStrato[j - 1] <= z && z <= analysis::fondoStrato(dati, j))
            terreno = {dati.phiStrato[j] * analysis::pi / 180, dati.coesione[j]};
    return terreno;
}

PressioniNodo pressioniNodo(const analysis::RisultatiFase& fase, int i, double metodoSpinte,
                            const Resistenza& terreno) {
    const auto [phi, c] = terreno;
    PressioniNodo p;
    const auto coesione = analysis::coesioneLimiti(c, phi);
    p.limitiM =
        analysis::limitiMonte(metodoSpinte, fase.sigmaVm[i], fase.kam[i], fase.kpm[i], coesione);
    p.limitiV =
        analysis::limitiValle(metodoSpinte, fase.sigmaVv[i], fase.kav[i], fase.kpv[i], coesione);
    p.pm = fase.sigmaVm[i] * fase.k0m[i] + fase.Ehm[i] * fase.yNodo[i];
    p.pm = std::min(std::max(p.pm, p.limitiM.attiva), p.limitiM.passiva);
    p.pv = fase.sigmaVv[i] * fase.k0v[i] + fase.Ehv[i] * fase.yNodo[i];
    p.pv = std::min(std::max(p.pv, p.limitiV.passiva), p.limitiV.attiva);
    return p;
}

}  // namespace korven::results
