#include "drawings/hatch_drawing.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawings/hatch_code.hpp"
#include "plot/line_clip.hpp"
#include "plot/plot_engine.hpp"

namespace korven::drawings {

namespace {

using plot::Punto;
using plot::Tratto;

constexpr double tolleranza = 0.0001;  // [cm]
constexpr double lunghezzaPunto = 0.01;
constexpr Punto nessunaPosizione{9999, 9999};  // no stroke gets there

bool vicini(Punto a, Punto b) {
    return std::abs(a.x - b.x) <= tolleranza && std::abs(a.y - b.y) <= tolleranza;
}

// Number of tiles of half side `a` on each side of the middle one. What is missing at the edge may
// be left out as long as nobody sees it.
int piastrelleIntorno(double mezzaMisura, double a) {
    constexpr double massimo = 1e9;  // more than anybody waits for
    return mezzaMisura > a
               ? static_cast<int>(std::min((mezzaMisura - a) / (2 * a) + 0.9999, massimo))
               : 0;
}

using RiceviTratto = std::function<void(const Tratto&)>;

// The strokes of one pattern in a rectangle, tile by tile.
void perOgniTratto(const Campitura& campitura, double passo, const plot::Riquadro& riquadro,
                   const RiceviTratto& ricevi) {
    const auto tratti = leggiTratti(campitura);
    if (tratti.empty()) return;
    const Punto centro{(riquadro.xmin + riquadro.xmax) / 2, (riquadro.ymin + riquadro.ymax) / 2};
    const double u = unitaTratto(campitura, passo);
    const double a = mezzoLatoPiastrella * u;
    const int nx = piastrelleIntorno(riquadro.larghezza() / 2, a);
    const int ny = piastrelleIntorno(riquadro.altezza() / 2, a);
    for (int j = -ny; j <= ny; ++j)
        for (int i = -nx; i <= nx; ++i) {
            const Punto c{centro.x + 2 * a * i, centro.y + 2 * a * j};
            for (const auto& t : tratti) {
                plot::controllaInterruzione();  // most strokes of a tile may lie outside
                const Tratto intero{{c.x + u * t.x1, c.y + u * t.y1},
                                    {c.x + u * t.x2, c.y + u * t.y2}};
                if (const auto tratto = plot::ritagliaTratto(intero, riquadro)) ricevi(*tratto);
            }
        }
}

// Draws strokes with as few moves of the pen as their order allows.
class Penna {
 public:
    explicit Penna(double centro) : centro_(centro) {}

    void traccia(Tratto tratto) {
        if (vicini(tratto.a, ultima_)) std::swap(tratto.da, tratto.a);
        if (!vicini(tratto.da, ultima_)) plot::plotMuovi(tratto.da.x, tratto.da.y, plot::pennaSu);
        if (tratto.da == tratto.a)
            tratto.a.x += tratto.a.x < centro_ ? lunghezzaPunto : -lunghezzaPunto;
        plot::plotMuovi(tratto.a.x, tratto.a.y, plot::pennaGiu);
        ultima_ = tratto.a;
    }

 private:
    double centro_;
    Punto ultima_ = nessunaPosizione;
};

}  // namespace

void perOgniTratto(double codice, const plot::Riquadro& riquadro, const RiceviTratto& ricevi) {
    const Campiture& tutte = campiture();
    for (const auto& [numero, passo] : gruppiCampitura(codice))
        perOgniTratto(tutte[numero], passo, riquadro, ricevi);
}

void disegnaCampitura(double codice, double x1, double x2, double y1, double y2) {
    Penna penna((x1 + x2) / 2);
    perOgniTratto(codice, {x1, std::min(y1, y2), x2, std::max(y1, y2)},
                  [&penna](const Tratto& tratto) { penna.traccia(tratto); });
}

}  // namespace korven::drawings
