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
    tela.disegna(scene::Elemento::curva, 0,
                 scene::Area{{{p.x - r, p.y}, {p.x, p.y - r}, {p.x + r, p.y}, {p.x, p.y + r}},
                             {scene::Ruolo::curva}});
}

}  // namespace

void disegnaNuvola(scene::Tela& tela, const scene::Riquadro& posto, const Nuvola& dati) {
    Estensione x, y;
    std::vector<scene::Punto> punti;
    for (const auto& p : dati.punti) {
        if (!std::isfinite(p.x) || !std::isfinite(p.y)) continue;
        x.comprendi(p.x);
        y.comprendi(p.y);
        punti.push_back(p);
    }
    if (punti.empty()) return;
    auto campo = posto;
    campo.destra -= corpoCarta;
    const Assi assi(campo, x.conAria(), y.conAria(), dati.titoloX, dati.titoloY);
    assi.disegna(tela);
    const std::size_t n = std::min(punti.size(), massimiPunti);
    for (std::size_t k = 0; k < n; ++k) {
        const auto& p = punti[k * punti.size() / n];
        segna(tela, assi.punto(p.x, p.y));
    }
}

}  // namespace korven::drawings
