#include "commands/run_control.hpp"

#include <algorithm>

#include "analysis/run_flags.hpp"
#include "base/translated_texts.hpp"

namespace korven::commands {

namespace {

// A stage without rest is told by what still changed in its last iterations.
constexpr int ultimeIterazioni = 20;

}  // namespace

void ControlloCorsa::apri() {
    fasi_.clear();
    motivo_.clear();
    oltreLimite_ = false;
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
        ferma();
    }
    if (interruzione_ != 0) analysis::stopCalcolo = true;
}

void ControlloCorsa::ferma() {
    analysis::stopCalcolo = true;
    oltreLimite_ = true;
    motivo_ = traccia_.righe(std::max(2, traccia_.iterazioni() - ultimeIterazioni + 1));
    motivo_.insert(motivo_.begin(),
                   base::traduttore("Calcolo interrotto: nessuna convergenza") + " (" +
                       base::traduttore("fase") + " " + std::to_string(traccia_.fase()) + ", " +
                       std::to_string(traccia_.iterazioni()) + " " +
                       base::traduttore("iterazioni") + "). " +
                       base::traduttore("Nelle ultime iterazioni cambiano stato") + ":");
}

}  // namespace korven::commands
