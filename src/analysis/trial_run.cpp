#include "analysis/trial_run.hpp"

#include <cassert>
#include <cmath>

#include "analysis/input_checks.hpp"
#include "analysis/staged_run.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::analysis {

namespace {

// Outputs multiply by 10 and by 100, and the checks by a factor of the actions.
constexpr double massimoFattore = 1000;

bool mostrabili(const EstremiIterazione& estremi) {
    return std::isfinite(massimoFattore * estremi.yMax) &&
           std::isfinite(massimoFattore * estremi.mMax);
}

}  // namespace

EsitoProva provaFasi(project::DatiProgetto dati, int nSeg, OsservatoreCorsa& osservatore) {
    assert(motivoRifiuto(dati).empty());
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    EsitoProva prova;
    const EsitoCorsa corsa = calcolaFasi(dati, nSeg, osservatore);
    for (const FaseCalcolata& fase : corsa.fasi) {
        if (fase.esito == EsitoFase::singolare) prova.faseSingolare = fase.fase;
        if (fase.esito == EsitoFase::convergente && !mostrabili(fase.estremi))
            prova.mostrabile = false;
    }
    return prova;
}

}  // namespace korven::analysis
