#include "verification/computed_wall.hpp"

#include <cmath>

#include "analysis/anchors_in_place.hpp"
#include "analysis/run_observer.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"
#include "structure/bending_resistance.hpp"

namespace korven::verification {

namespace {

class FinoAlLimite : public analysis::OsservatoreCorsa {
 public:
    void iterazione(const analysis::StatoIterazione& stato) override {
        oltre_ = !stato.convergente && stato.iterazione >= massimeIterazioni;
    }
    [[nodiscard]] bool fermata() override { return oltre_; }

 private:
    bool oltre_ = false;
};

}  // namespace

std::size_t PareteCalcolata::nodo(double z) const {
    return static_cast<std::size_t>(std::lround(z / h()));
}

const analysis::RisultatiFase* PareteCalcolata::corsa(int fase) {
    if (!corsa_) {
        FinoAlLimite osservatore;
        corsa_ = analysis::calcolaFasi(dati(), nSeg(), osservatore);
    }
    if (fase < 1 || fase > static_cast<int>(corsa_->fasi.size())) return nullptr;
    const auto& calcolata = corsa_->fasi[static_cast<std::size_t>(fase) - 1];
    return calcolata.esito == analysis::EsitoFase::convergente ? &calcolata.risultati : nullptr;
}

std::optional<double> PareteCalcolata::tiroCorsa(int fase, int tirante) {
    if (corsa(fase) == nullptr || tirante > analysis::tirantiInOpera(dati(), fase)) return {};
    const int nodo = analysis::nodoTirante(dati().profTirante[tirante], h());
    int posa = fase;  // the stage that it came in, this time
    while (posa > 1 && analysis::tirantiInOpera(dati(), posa - 1) >= tirante) --posa;
    const double riferimento = posa > 1 ? corsa(posa - 1)->yNodo[nodo] : 0;
    const double F = dati().pretTirante[tirante] +
                     dati().rigTirante[tirante] * (corsa(fase)->yNodo[nodo] - riferimento);
    const bool spinge = dati().tipoTirante[tirante] == project::TipoTirante::trazioneCompressione;
    return F >= 0 || spinge ? F : 0;
}

const equilibrium::FaseEquilibrio* PareteCalcolata::faseEquilibrio(int fase) {
    if (!equilibrio_) equilibrio_ = equilibrium::calcolaEquilibrio(dati(), nSeg());
    if (fase < 1 || fase > static_cast<int>(equilibrio_->size())) return nullptr;
    return &(*equilibrio_)[static_cast<std::size_t>(fase) - 1];
}

const equilibrium::FaseEquilibrio* PareteCalcolata::inEquilibrio(int fase) {
    const auto* trovata = faseEquilibrio(fase);
    if (trovata == nullptr || trovata->esito != equilibrium::EsitoFase::equilibrio) return nullptr;
    return trovata;
}

const structure::MomentiResistenti& PareteCalcolata::resistenze() {
    if (!resistenze_) resistenze_ = structure::resistenze(dati().sezione, dati().sforzoNormale);
    return *resistenze_;
}

}  // namespace korven::verification
