#include "scene/canvas.hpp"

#include <algorithm>

namespace korven::scene {

void Tela::disegna(Elemento elemento, int numero, Figura figura) {
    Primitiva& una = figure_.emplace_back();
    una.elemento = elemento;
    una.numero = numero;
    una.figura = std::move(figura);
}

bool Tela::libero(const Riquadro& posto) const {
    return posto.sinistra >= tutto_.sinistra && posto.destra <= tutto_.destra &&
           posto.alto >= tutto_.alto && posto.basso <= tutto_.basso &&
           std::none_of(occupati_.begin(), occupati_.end(),
                        [&](const Riquadro& uno) { return uno.tocca(posto); });
}

bool Tela::colloca(const Scritta& s, const std::string& parole) {
    if (parole.empty()) return false;
    Testo testo{.punto = {},
                .corpo = s.corpo,
                .grassetto = s.grassetto,
                .verticale = s.verticale,
                .testo = parole,
                .tinta = s.tinta,
                .piastra = s.piastra,
                .larghezza = larghezza(parole, s.corpo, s.grassetto)};
    for (const Posto& posto : s.posti) {
        testo.punto = posto.punto;
        testo.ancora = posto.ancora;
        testo.fondo = posto.fondo;
        const Riquadro r = testo.riquadro();
        if (!libero(r)) continue;
        occupa(r);
        disegna(s.elemento, s.numero, std::move(testo));
        return true;
    }
    return false;
}

std::vector<Primitiva> Tela::concludi() {
    std::stable_sort(scritte_.begin(), scritte_.end(),
                     [](const Scritta& a, const Scritta& b) { return a.grado < b.grado; });
    for (const Scritta& s : scritte_)
        if (!colloca(s, s.testo)) (void)colloca(s, s.inBreve);
    scritte_.clear();
    return std::move(figure_);
}

}  // namespace korven::scene
