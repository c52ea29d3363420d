#include "analysis/stage_results.hpp"

#include <utility>

namespace korven::analysis {

RisultatiFase risultatiFase(const ArraysCorsa& corsa) {
    const StatoSuolo& s = corsa.suolo;
    RisultatiFase r;
    const std::pair<VettoreNodi*, const VettoreNodi*> colonne[] = {
        {&r.sigmaVv, &s.sigmaVv},
        {&r.Ehv, &s.Ehv},
        {&r.k0v, &s.k0v},
        {&r.kav, &s.kav},
        {&r.kpv, &s.kpv},
        {&r.sigmaVm, &s.sigmaVm},
        {&r.Ehm, &s.Ehm},
        {&r.k0m, &s.k0m},
        {&r.kam, &s.kam},
        {&r.kpm, &s.kpm},
        {&r.yNodo, &corsa.yNodo},
        {&r.momentoNodo, &corsa.momentoNodo},
        {&r.taglioNodo, &corsa.taglioNodo},
    };
    for (const auto& [colonna, valori] : colonne)
        for (int i = 1; i <= corsa.nNodi; ++i) (*colonna)[i] = (*valori)[i];
    return r;
}

}  // namespace korven::analysis
