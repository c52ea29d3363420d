#include "plot/zoom_window.hpp"

#include <algorithm>

#include "plot/plot_engine.hpp"

namespace korven::plot {

namespace {

void mostraZoom(const Riquadro& zoom) { plotZoom(zoom.xmin, zoom.ymin, zoom.xmax, zoom.ymax); }

}  // namespace

Riquadro riquadroZoom(Punto inizio, Punto fine, const Riquadro& finestra) {
    Riquadro zoom{std::max(std::min(inizio.x, fine.x), finestra.xmin),
                  std::max(std::min(inizio.y, fine.y), finestra.ymin),
                  std::min(std::max(inizio.x, fine.x), finestra.xmax),
                  std::min(std::max(inizio.y, fine.y), finestra.ymax)};
    if (zoom.larghezza() < zoomMinimo) zoom.xmax = zoom.xmin + zoomMinimo;
    if (zoom.altezza() < zoomMinimo) zoom.ymax = zoom.ymin + zoomMinimo;
    return zoom;
}

Riquadro spostaZoom(const Riquadro& zoom, Direzione direzione, PassoSpostamento passo) {
    const double quinti = passo == PassoSpostamento::breve ? 1 : 4;
    const double dx = quinti * zoom.larghezza() / 5;
    const double dy = quinti * zoom.altezza() / 5;
    Punto di;
    switch (direzione) {
        case Direzione::sinistra:
            di.x = -dx;
            break;
        case Direzione::destra:
            di.x = dx;
            break;
        case Direzione::alto:
            di.y = dy;
            break;
        case Direzione::basso:
            di.y = -dy;
            break;
    }
    return {zoom.xmin + di.x, zoom.ymin + di.y, zoom.xmax + di.x, zoom.ymax + di.y};
}

void plotIngrandisci(Punto inizio, Punto fine) {
    mostraZoom(riquadroZoom(inizio, fine, statoPlot.finestra));
}

void plotSposta(Direzione direzione, PassoSpostamento passo) {
    if (statoPlot.zoom) mostraZoom(spostaZoom(statoPlot.rettangoloZoom, direzione, passo));
}

}  // namespace korven::plot
