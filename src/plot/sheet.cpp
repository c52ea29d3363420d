#include "plot/sheet.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/code_page.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

PostoTitolo titoloFoglio(int i) {
    if (i == 1) return {xCentro, 26, 0.5};
    return {xCentro, 26.5 - 0.5 * i, 0.3};
}

void apriFoglio(const base::Tabella<std::string, 6>& titoli, std::string_view titolo) {
    plotApri(0, 0, larghFoglio, altFoglio);
    for (int i = 1; i <= 6; ++i) {
        if (i <= 2) plotPenna(i);
        const auto [x, y, altezza] = titoloFoglio(i);
        testoCentrato(x, y, altezza, titoli[i]);
    }
    plotPenna(3);
    testoCentrato(xCentro, y0 + altQuadro + 0.3, 0.4, titolo);
}

void linea(double x1, double y1, double x2, double y2) {
    plotMuovi(x1, y1, pennaSu);
    plotMuovi(x2, y2, pennaGiu);
}

void disegnaCerchio(double x, double y, double raggio) {
    constexpr double freccia = 0.001;  // [cm]
    constexpr int minimo = 12, massimo = 720;
    if (!(raggio > 0)) return;
    const double corde = std::numbers::pi / std::acos(1 - std::min(freccia / raggio, 1.0));
    const int n = static_cast<int>(std::clamp(std::ceil(corde), double{minimo}, double{massimo}));
    plotMuovi(x + raggio, y, pennaSu);
    for (int k = 1; k <= n; ++k) {
        const double angolo = k * 2 * std::numbers::pi / n;
        plotMuovi(x + raggio * std::cos(angolo), y + raggio * std::sin(angolo), pennaGiu);
    }
}

void testoCentrato(double x, double y, double altezza, std::string_view testo, double angolo) {
    plotSimbolo(x, y, altezza, testo, angolo, conteggioCentrato);
}

void testoDa(double x, double y, double altezza, std::string_view testo, double angolo) {
    plotSimbolo(x, y, altezza, testo, angolo, static_cast<int>(base::numeroCaratteri(testo)));
}

void testoFinoA(double x, double y, double altezza, std::string_view testo) {
    testoDa(x - larghezzaTesto(altezza, testo), y, altezza, testo);
}

}  // namespace korven::plot
