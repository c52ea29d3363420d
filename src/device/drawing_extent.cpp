#include "device/drawing_extent.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "device/drawing_fonts.hpp"

namespace korven::device {

namespace {

constexpr double bordoMassimo = 2;  // [cm]
constexpr double respiro = 0.1;     // beyond the last letter

void includi(plot::Riquadro& vista, double x, double y) {
    vista = {std::min(vista.xmin, x - respiro), std::min(vista.ymin, y - respiro),
             std::max(vista.xmax, x + respiro), std::max(vista.ymax, y + respiro)};
}

// Both ends of a text, at its base line and at its upper edge.
void includi(plot::Riquadro& vista, const plot::TestoPlot& testo) {
    const double larghezza = MetricaQt().larghezza(testo.carattere, testo.altezza, testo.testo);
    const double angolo = testo.angolo * std::numbers::pi / 180;
    const double c = std::cos(angolo), s = std::sin(angolo);
    const double inizio = testo.conteggio == plot::conteggioCentrato ? -larghezza / 2 : 0;
    for (const double lungo : {inizio, inizio + larghezza})
        for (const double alto : {0.0, testo.altezza})
            includi(vista, testo.x + c * lungo - s * alto, testo.y + s * lungo + c * alto);
}

}  // namespace

plot::Riquadro vistaDisegno(const plot::Riquadro& foglio, const plot::ArchivioDisegno& archivio) {
    plot::Riquadro vista = foglio;
    for (const plot::TestoPlot& testo : archivio.testi())
        if (testo.x >= foglio.xmin && testo.x <= foglio.xmax && testo.y >= foglio.ymin &&
            testo.y <= foglio.ymax)
            includi(vista, testo);
    return {std::max(vista.xmin, foglio.xmin - bordoMassimo),
            std::max(vista.ymin, foglio.ymin - bordoMassimo),
            std::min(vista.xmax, foglio.xmax + bordoMassimo),
            std::min(vista.ymax, foglio.ymax + bordoMassimo)};
}

}  // namespace korven::device
