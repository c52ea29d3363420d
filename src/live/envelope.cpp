#include "live/envelope.hpp"

#include <algorithm>

namespace korven::live {

namespace {

using equilibrium::FaseEquilibrio;

template <class Valore>
Fascia fascia(const PareteViva& parete, const Valore& valore) {
    Fascia f;
    for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
        const FaseEquilibrio& fase = *parete.fase(k);
        if (k == 1) {
            for (std::size_t i = 0; i < fase.y.size(); ++i) f.minimo.push_back(valore(fase, i));
            f.massimo = f.minimo;
        }
        for (std::size_t i = 0; i < fase.y.size(); ++i) {
            f.minimo[i] = std::min(f.minimo[i], valore(fase, i));
            f.massimo[i] = std::max(f.massimo[i], valore(fase, i));
        }
    }
    return f;
}

Fascia unite(const Fascia& a, const Fascia& b) {
    Fascia f = a;
    for (std::size_t i = 0; i < f.minimo.size(); ++i) {
        f.minimo[i] = std::min(f.minimo[i], b.minimo[i]);
        f.massimo[i] = std::max(f.massimo[i], b.massimo[i]);
    }
    return f;
}

std::vector<double> maggiori(const PareteViva& parete) {
    std::vector<double> tiri;
    for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
        const auto& diFase = parete.fase(k)->tiri;
        for (std::size_t t = 0; t < diFase.size(); ++t) {
            if (t == tiri.size()) tiri.push_back(diFase[t]);
            tiri[t] = std::max(tiri[t], diFase[t]);
        }
    }
    return tiri;
}

}  // namespace

double pressioneNetta(const FaseEquilibrio& fase, std::size_t i) {
    return fase.monte[i] + fase.valle[i] + fase.acqua[i] + fase.costante;
}

Inviluppo inviluppo(const PareteViva& parete) {
    const auto di = [&parete](std::vector<double> FaseEquilibrio::*quale) {
        return fascia(parete, [quale](const auto& f, std::size_t i) { return (f.*quale)[i]; });
    };
    Inviluppo e{.y = di(&FaseEquilibrio::y),
                .momento = di(&FaseEquilibrio::momento),
                .taglio = {},
                .taglioSopra = di(&FaseEquilibrio::taglioSopra),
                .taglioSotto = di(&FaseEquilibrio::taglioSotto),
                .pressione = fascia(parete, pressioneNetta),
                .tiri = maggiori(parete)};
    e.taglio = unite(e.taglioSopra, e.taglioSotto);
    return e;
}

}  // namespace korven::live
