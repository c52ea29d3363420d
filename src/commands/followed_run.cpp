#include "commands/followed_run.hpp"

#include "analysis/run_flags.hpp"

namespace korven::commands {

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
    if (!ferma_) return {};
    std::string testo;
    for (const auto& riga : traccia_.arresto("Calcolo interrotto")) {
        if (!testo.empty()) testo += testo.back() == ':' ? " " : "; ";
        testo += riga;
    }
    return testo;
}

}  // namespace korven::commands
