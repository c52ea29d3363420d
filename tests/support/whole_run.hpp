#pragma once

#include <vector>

#include "support/run_harness.hpp"

namespace korven::test {

/// The stage tables that a run of `dati` leaves in its result file. Empty if the run is refused,
/// singular, or needs more than `massimoIterazioni` in a stage (it's stopped then as by the user).
inline std::vector<analysis::RisultatiFase> fasiDi(const project::DatiProgetto& dati, int nSeg,
                                                   int massimoIterazioni = 60) {
    Banco banco(dati, nSeg);
    banco.avanzamento.adOgniIterazione = [=](const analysis::StatoIterazione& stato) {
        if (stato.iterazione >= massimoIterazioni) analysis::stopCalcolo = true;
    };
    banco.calcola();
    if (analysis::erroreCalcolo) return {};
    return banco.leggi();
}

}  // namespace korven::test
