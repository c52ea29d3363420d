#include <algorithm>
#include <cmath>
#include <cstddef>

#include "drawings/annex/paper.hpp"
#include "drawings/charts/axes.hpp"
#include "drawings/charts/charts.hpp"

namespace korven::drawings {

namespace {

constexpr std::size_t massimiPunti = 2000;

// A small lozenge: it is seen where many lie together, and a plotter fills it with two strokes.
void segna(scene::Tela& tela, scene::Punto p) {
    constexpr double r = 1.3;
    tela.disegna(scene::Elemento::estremo, 0,
                 scene::Area{{{p.x - r, p.y}, {p.x, p.y - r}, {p.x + r, p.y}, {p.x, p.y + r}},
                             {scene::Ruolo::curva}});
}

}  // namespace

void disegnaNuvola(scene::Tela& tela, const scene::Riquadro& posto, const Nuvola& dati) {
    Estensione x, y;
    std::vector<PuntoGrafico> punti;
    std::vector<SenzaNumero> mancanti, detti;
    for (const auto& p : dati.punti) {
        if (!std::isfinite(p.x)) continue;
        x.comprendi(p.x);
        y.comprendi(p.y);
        if (std::isfinite(p.y))
            punti.push_back(p);
        else
            mancanti.push_back({p.x, p.perche});
        if (!std::isfinite(p.y) || p.senzaPiede()) detti.push_back({p.x, p.perche});
    }
    if (punti.empty()) return;
    auto campo = posto;
    campo.destra -= corpoCarta;
    const Assi assi(campo, x.conAria(), y.conAria(), dati.x, {.titolo = dati.titoloY},
                    altezzaMancanze(mancanti.empty() ? 0 : 1));
    assi.disegna(tela);
    const std::size_t n = std::min(punti.size(), massimiPunti);
    for (std::size_t k = 0; k < n; ++k) {
        const auto& p = punti[k * punti.size() / n];
        (p.senzaPiede() ? segnaSenzaPiede : segna)(tela, assi.punto(p.x, p.y));
    }
    segnaMancanze(tela, assi, 0, mancanti);
    spiegaMancanze(tela, assi, detti, dati.mancanze);
}

}  // namespace korven::drawings
