#include "safety/slow_stage.hpp"

#include "safety/words.hpp"

namespace korven::safety {

const std::string& FaseSenzaRiposo::riga(const analysis::StatoIterazione& stato,
                                         const project::DatiProgetto& dati) {
    if (stato.iterazione < iterazioniPrima) {
        chiesta_ = 0;
        riga_.clear();
    } else if (chiesta_ != stato.fase) {
        chiesta_ = stato.fase;
        riga_ = inBreve(diagnosi(dati, stato.nNodi - 1, stato.fase));
    }
    return riga_;
}

}  // namespace korven::safety
