#include "analysis/watch/followed_run.hpp"

#include "analysis/run_flags.hpp"

namespace korven::analysis {

namespace {

constexpr std::string_view interrotto = "Calcolo interrotto";

}  // namespace

void CorsaSeguita::apri() {
    ferma_ = false;
    fine_ = {};
    vista_.apri();
}

void CorsaSeguita::iterazione(const analysis::StatoIterazione& stato) {
    vista_.iterazione(stato);
    traccia_.registra(stato);
    ferma_ = analysis::stopCalcolo;
}

void CorsaSeguita::caduta(const FaseCalcolata& fase) {
    vista_.caduta(fase);
    fine_ = fineCorsa(fase, false);
}

std::string CorsaSeguita::arresto() const {
    return ferma_ ? traccia_.arrestoInBreve(interrotto) : std::string();
}

std::string CorsaSeguita::doveFerma() const {
    return ferma_ ? traccia_.dove(interrotto) : std::string();
}

}  // namespace korven::analysis
