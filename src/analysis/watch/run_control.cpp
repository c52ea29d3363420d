#include "analysis/watch/run_control.hpp"

namespace korven::analysis {

void ControlloCorsa::apri() {
    fasi_.clear();
    motivo_.clear();
    oltreLimite_ = false;
    fine_ = {};
    calcolato_ = true;
    vista_.apri();
}

void ControlloCorsa::iterazione(const analysis::StatoIterazione& stato) {
    vista_.iterazione(stato);
    traccia_.registra(stato);
    if (stato.convergente) {
        Fase fase{stato.fase, stato.iterazione, {}};
        if (stato.iterazione > iterazioniTracciate) fase.traccia = traccia_.righe();
        fasi_.push_back(std::move(fase));
    } else if (maxIterazioni_ > 0 && stato.iterazione >= maxIterazioni_) {
        oltreLimite_ = true;
        motivo_ = traccia_.arresto("Calcolo interrotto: nessuna convergenza");
    }
}

void ControlloCorsa::caduta(const FaseCalcolata& fase) {
    vista_.caduta(fase);
    fine_ = fineCorsa(fase, oltreLimite_);
}

bool ControlloCorsa::fermata() { return oltreLimite_ || interruzione_ != 0 || vista_.fermata(); }

void ControlloCorsa::attendi(std::string_view detto) {
    oltreLimite_ = false;  // of a run before
    vista_.attendi(detto);
}

}  // namespace korven::analysis
