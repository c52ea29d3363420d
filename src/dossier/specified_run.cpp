#include "dossier/specified_run.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/stage_sequence.hpp"

namespace korven::dossier {

namespace {

// Node 1 of the run is element 0 of the equilibrium.
double scarto(const analysis::VettoreNodi& corsa, const std::vector<double>& equilibrio) {
    double massimo = 0;
    int nodo = 0;
    for (const double valore : equilibrio)
        massimo = std::max(massimo, std::fabs(corsa[++nodo] - valore));
    return massimo;
}

}  // namespace

void CorsaAffiancata::fine(const analysis::FaseCalcolata& fase) {
    CorsaFase& f = fasi_.emplace_back();
    f.fase = fase.fase;
    f.iterazioni = fase.iterazioni;
    f.convergente = true;
    if (const auto* equilibrio = parete_.fase(fase.fase)) {
        f.scartoSpostamento = scarto(fase.risultati.yNodo, equilibrio->y);
        f.scartoMomento = scarto(fase.risultati.momentoNodo, equilibrio->momento);
    }
    altro_.fine(fase);
}

void CorsaAffiancata::caduta(const analysis::FaseCalcolata& fase) {
    CorsaFase& f = fasi_.emplace_back();
    f.fase = fase.fase;
    f.iterazioni = fase.iterazioni;
    altro_.caduta(fase);
}

}  // namespace korven::dossier
