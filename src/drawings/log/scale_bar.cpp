#include <algorithm>
#include <cmath>

#include "drawings/log/columns.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

namespace {

// A solid strip beside the axis: a pen wide enough leaves no gap between its lines.
void striscia(double xAsse, double y1, double y2, bool aDestra) {
    constexpr int linee = 10;
    constexpr double distanza = 0.02;
    for (int j = 1; j <= linee; ++j) {
        const double x = xAsse + (aDestra ? distanza : -distanza) * j;
        plot::linea(x, y1, x, y2);
    }
}

}  // namespace

void disegnaScala(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr double margine = 0.4;
    const double xAsse = colonna.destra() - margine;
    const double H = stratigrafia.profondita();
    const double passo = passoProfondita(H);
    double sopra = testaTabella;
    bool ultimo = false;
    for (int k = 1; !ultimo; ++k) {
        ultimo = k * passo >= H;
        const double y = stratigrafia.scala.y(std::min(k * passo, H));
        striscia(xAsse, sopra, y, k % 2 == 1);
        attraversa(colonna, y);
        // The depth of the last layer is in the first column already.
        if (!ultimo) numeroFinoA(xAsse, y, k * passo, -1, 1.5, 3);
        sopra = y;
    }
}

}  // namespace korven::drawings
