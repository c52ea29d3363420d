#include "safety/prepared_wall.hpp"

#include "analysis/input_checks.hpp"
#include "base/translated_texts.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::safety {

namespace {

void prendiRigidezza(ParetePronta& parete) {
    if (parete.dati.rigidezzaEJ != 0 || structure::troppiFerri(parete.dati.sezione)) return;
    parete.dati.rigidezzaEJ = structure::rigidezzaOfferta(parete.dati.sezione).value_or(0);
    parete.ejDellaSezione = parete.dati.rigidezzaEJ != 0;
}

std::string motivo(const project::DatiProgetto& dati) {
    if (auto perche = analysis::motivoDati(dati); !perche.empty()) return perche;
    return dati.rigidezzaEJ == 0 ? base::traduttore(analysis::messaggioSenzaEJ) : std::string();
}

}  // namespace

ParetePronta preparaParete(const project::DatiProgetto& dati) {
    ParetePronta parete{.dati = dati};
    prendiRigidezza(parete);
    parete.rifiuto = motivo(parete.dati);
    return parete;
}

}  // namespace korven::safety
