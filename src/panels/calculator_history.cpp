#include "panels/calculator_history.hpp"

#include <utility>

#include "base/translated_texts.hpp"

namespace korven::panels {

StoriaCalcolo::Valore StoriaCalcolo::valore(std::size_t posto) const {
    if (posto == genere) return ingressi_.genere;
    if (posto == misura) return ingressi_.misuraArea;
    return ingressi_.testi.at(posto);
}

void StoriaCalcolo::metti(std::size_t posto, const Valore& valore) {
    if (posto == genere)
        ingressi_.genere = std::get<GenereAncoraggio>(valore);
    else if (posto == misura)
        ingressi_.misuraArea = std::get<MisuraArea>(valore);
    else
        ingressi_.testi.at(posto) = std::get<std::string>(valore);
}

void StoriaCalcolo::cambia(std::size_t posto, const Valore& dopo) {
    const std::string nome = posto == genere ? base::traduttore("Che cosa si calcola")
                             : posto == misura
                                 ? base::traduttore("Come si dà l'area")
                                 : etichetta(static_cast<VoceCalcolo>(posto), ingressi_);
    Valore prima = valore(posto);
    metti(posto, dopo);
    inTabella_ = 0;
    storia_.scritto(masks::passoCampo(nome), posto, std::move(prima), dopo);
}

void StoriaCalcolo::scrivi(VoceCalcolo voce, const std::string& testo) {
    cambia(static_cast<std::size_t>(voce), testo);
}

void StoriaCalcolo::scegli(GenereAncoraggio quale) { cambia(genere, quale); }

void StoriaCalcolo::scegli(MisuraArea quale) { cambia(misura, quale); }

std::optional<std::size_t> StoriaCalcolo::annulla() {
    if (!storia_.annullabile()) return {};
    return storia_.annulla([this](std::size_t posto, const Valore& v) { metti(posto, v); });
}

void StoriaCalcolo::usata() {
    storia_.svuota();
    inTabella_ = 0;
}

std::optional<std::size_t> StoriaCalcolo::ripeti(bool tabella) {
    if (!tabella) inTabella_ = 0;
    if (inTabella_ > 0) {
        --inTabella_;
        return {};
    }
    if (!storia_.ripetibile()) return {};
    return storia_.ripeti([this](std::size_t posto, const Valore& v) { metti(posto, v); });
}

}  // namespace korven::panels
