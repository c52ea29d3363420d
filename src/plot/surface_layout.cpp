#include "plot/surface_layout.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "plot/device_pixels.hpp"

namespace korven::plot {

DisposizioneSuperficie disponiSuperficie(const Riquadro& finestra, const SpazioDisegno& spazio) {
    constexpr double strisceMinime = 6;
    const double dx = finestra.larghezza();
    const double dy = finestra.altezza();
    assert(dx > 0 && dy > 0);

    // A window drawn together to nothing still has a pixel, and a scale.
    DisposizioneSuperficie d{std::max(spazio.larghezza, 1.0), std::max(spazio.altezza, 1.0),
                             finestra, 0, 0};
    if (dy / dx >= d.altezza / d.larghezza) {
        d.larghezza = d.altezza * dx / dy;
        const double minima = strisceMinime * spazio.strisciaComandi;
        if (d.larghezza < minima) {
            d.larghezza = minima;
            d.finestra.xmax = d.finestra.xmin + dy * d.larghezza / d.altezza;
        }
    } else {
        d.altezza = d.larghezza * dy / dx;
    }
    d.scalaX = d.larghezza / d.finestra.larghezza();
    d.scalaY = d.altezza / dy;
    return d;
}

int carattereSuperficie(double altezza, double scalaX, double scalaY) {
    const long pixel = pixelInteri((scalaX + scalaY) * altezza / 2);
    return static_cast<int>(std::min(-pixel * 4 / 3, -1L));
}

int spessoreSuperficie(double spessore, double scalaX, double scalaY) {
    return std::max(1, pixelInteri(spessore * (scalaX + scalaY) / 2));
}

}  // namespace korven::plot
