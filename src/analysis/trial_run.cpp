#include "analysis/trial_run.hpp"

#include <cassert>
#include <cmath>

#include "analysis/input_checks.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/stage_sequence.hpp"
#include "structure/stiffness_update.hpp"

namespace korven::analysis {

namespace {

// Outputs multiply by 10 and by 100, and the checks by a factor of the actions.
constexpr double massimoFattore = 1000;

bool mostrabili(const EstremiIterazione& estremi) {
    return std::isfinite(massimoFattore * estremi.yMax) &&
           std::isfinite(massimoFattore * estremi.mMax);
}

}  // namespace

EsitoProva provaFasi(project::DatiProgetto dati, int nSeg, Avanzamento& avanzamento) {
    assert(motivoRifiuto(dati).empty());
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    const auto corsa = preparaCorsa(dati, nSeg);
    EsitoProva prova;
    stopCalcolo = false;
    for (int k = 1; k <= dati.nFasi; ++k) {
        const RisultatoFase risultato = risolviFase(k, dati, *corsa, avanzamento);
        if (risultato.esito == EsitoFase::singolare) prova.faseSingolare = k;
        if (risultato.esito != EsitoFase::convergente) return prova;
        prova.mostrabile = prova.mostrabile && mostrabili(risultato.estremi);
    }
    return prova;
}

}  // namespace korven::analysis
