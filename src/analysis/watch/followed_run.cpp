#include "analysis/watch/followed_run.hpp"

#include "analysis/run_flags.hpp"

namespace korven::analysis {

void CorsaSeguita::apri() {
    ferma_ = false;
    vista_.apri();
}

void CorsaSeguita::iterazione(const analysis::StatoIterazione& stato) {
    vista_.iterazione(stato);
    traccia_.registra(stato);
    ferma_ = analysis::stopCalcolo;
}

std::string CorsaSeguita::arresto() const {
    return ferma_ ? traccia_.arrestoInBreve("Calcolo interrotto") : std::string();
}

}  // namespace korven::analysis
