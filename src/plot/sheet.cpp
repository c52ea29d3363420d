#include "plot/sheet.hpp"

#include "base/code_page.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

void apriFoglio(const base::Tabella<std::string, 6>& titoli, std::string_view titolo) {
    plotApri(0, 0, larghFoglio, altFoglio);
    plotPenna(1);
    testoCentrato(xCentro, 26, 0.5, titoli[1]);
    plotPenna(2);
    for (int i = 2; i <= 6; ++i) testoCentrato(xCentro, 26.5 - 0.5 * i, 0.3, titoli[i]);
    plotPenna(3);
    testoCentrato(xCentro, y0 + altQuadro + 0.3, 0.4, titolo);
}

void linea(double x1, double y1, double x2, double y2) {
    plotMuovi(x1, y1, pennaSu);
    plotMuovi(x2, y2, pennaGiu);
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
