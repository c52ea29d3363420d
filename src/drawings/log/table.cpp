#include "drawings/log/table.hpp"

#include <algorithm>

#include "base/translated_texts.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

plot::PostoTitolo titoloStratigrafia(int i) {
    constexpr double x = 10.5;
    constexpr double altezza = 0.4;
    return {x, i == 1 ? 27.9 : 28.1 - 0.25 * i, altezza};
}

void disegnaTestata(const Colonna& colonna, std::initializer_list<std::string_view> testate) {
    constexpr double altezza = 0.25;
    constexpr double inizio = 0.5;  // above the foot of the heads
    plot::plotPenna(pennaTestata);
    const double parte = colonna.larghezza / (static_cast<double>(testate.size()) + 1);
    double x = colonna.sinistra;
    for (const std::string_view testata : testate) {
        x += parte;
        // The base line of upright text is its right side.
        plot::testoDa(x + altezza / 2, testaTabella + inizio, altezza, base::traduttore(testata),
                      90);
    }
    plot::plotPenna(pennaColonna);
    plot::plotMuovi(colonna.sinistra, testaTabella, plot::pennaSu);
    plot::plotMuovi(colonna.destra(), testaTabella, plot::pennaGiu);
    plot::plotMuovi(colonna.destra(), cimaTestata, plot::pennaGiu);
    plot::plotMuovi(colonna.sinistra, cimaTestata, plot::pennaGiu);
    plot::plotMuovi(colonna.sinistra, testaTabella, plot::pennaGiu);
}

void attraversa(const Colonna& colonna, double y) {
    plot::linea(colonna.sinistra, y, colonna.destra(), y);
}

void numeroFinoA(double x, double y, double valore, int decimali, double spazio, int altreCifre) {
    int cifre = 0;
    for (const double limite : {10, 100, 1000}) cifre += valore >= limite ? 1 : 0;
    const double inizio = (spazio + std::min(cifre, altreCifre)) * altezzaNumeriColonna;
    plot::plotNumero(x - inizio, y + 0.5 * altezzaNumeriColonna, altezzaNumeriColonna, valore, 0,
                     decimali);
}

}  // namespace korven::drawings
