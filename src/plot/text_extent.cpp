#include "plot/text_extent.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace korven::plot {

namespace {

constexpr double bordoMassimo = 2;  // [cm]

void includi(Riquadro& vista, double x, double y, double respiro) {
    vista = {std::min(vista.xmin, x - respiro), std::min(vista.ymin, y - respiro),
             std::max(vista.xmax, x + respiro), std::max(vista.ymax, y + respiro)};
}

// Both ends of a text, at its base line and at its upper edge.
void includi(Riquadro& vista, const TestoPlot& testo, const MetricaTesto& metrica, double respiro) {
    const double larghezza = metrica.larghezza(testo.carattere, testo.altezza, testo.testo);
    const double angolo = testo.angolo * std::numbers::pi / 180;
    const double c = std::cos(angolo), s = std::sin(angolo);
    const double inizio = testo.conteggio == conteggioCentrato ? -larghezza / 2 : 0;
    for (const double lungo : {inizio, inizio + larghezza})
        for (const double alto : {0.0, testo.altezza})
            includi(vista, testo.x + c * lungo - s * alto, testo.y + s * lungo + c * alto, respiro);
}

}  // namespace

Riquadro conTesti(const Riquadro& foglio, const ArchivioDisegno& archivio,
                  const MetricaTesto& metrica, double respiro) {
    Riquadro vista = foglio;
    for (const TestoPlot& testo : archivio.testi())
        if (testo.x >= foglio.xmin && testo.x <= foglio.xmax && testo.y >= foglio.ymin &&
            testo.y <= foglio.ymax)
            includi(vista, testo, metrica, respiro);
    return {std::max(vista.xmin, foglio.xmin - bordoMassimo),
            std::max(vista.ymin, foglio.ymin - bordoMassimo),
            std::min(vista.xmax, foglio.xmax + bordoMassimo),
            std::min(vista.ymax, foglio.ymax + bordoMassimo)};
}

}  // namespace korven::plot
