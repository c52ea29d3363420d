#include <vector>

#include "drawings/hatch_drawing.hpp"
#include "drawings/log/columns.hpp"
#include "drawings/log/label_spreading.hpp"
#include "drawings/log/layer_description.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

// The columns that show the layers as such: depths, graphic, water.

namespace korven::drawings {

void disegnaProfondita(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr double distanza = 1.2 * altezzaNumeriColonna;
    constexpr double tacca = 0.1;
    constexpr double margine = 0.2;
    const int n = stratigrafia.dati.nStrati;
    std::vector<double> piedi;
    for (int i = 1; i <= n; ++i) piedi.push_back(stratigrafia.yPiede(i));
    const auto etichette = separaEtichette(piedi, distanza, testaTabella, piedi.back());
    for (int i = 1; i <= n; ++i) {
        const double piede = piedi[static_cast<std::size_t>(i - 1)];
        const double etichetta = etichette[static_cast<std::size_t>(i - 1)];
        if (i < n) {
            plot::linea(colonna.sinistra, piede, colonna.sinistra + tacca, etichetta);
            plot::linea(colonna.destra(), piede, colonna.destra() - tacca, etichetta);
        }
        numeroFinoA(colonna.destra() - margine, etichetta, stratigrafia.dati.profStrato[i], 1, 3,
                    2);
    }
}

void disegnaGrafici(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr int primaDelleCampiture = 9;
    for (int i = 1; i <= stratigrafia.dati.nStrati; ++i) {
        const auto strato = leggiDescrizione(stratigrafia.dati.descrStrato[i]);
        const double piede = stratigrafia.yPiede(i);
        plot::plotPenna(primaDelleCampiture + strato.colore);
        disegnaCampitura(strato.campitura, colonna.sinistra, colonna.destra(),
                         stratigrafia.yPiede(i - 1), piede);
        if (!strato.lineaAlPiede) continue;
        plot::plotPenna(pennaColonna);
        attraversa(colonna, piede);
    }
}

void disegnaFalda(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr int lineeSotto = 4;
    constexpr double passo = 0.1;
    const double falda = stratigrafia.dati.faldaMonte;
    if (falda >= stratigrafia.profondita()) return;
    const double y = stratigrafia.scala.y(falda);
    for (int k = 0; k <= lineeSotto; ++k) {
        const double rientro = k * passo;
        plot::linea(colonna.sinistra + rientro, y - rientro, colonna.destra() - rientro,
                    y - rientro);
    }
    numeroFinoA(colonna.destra(), y, falda, 1, 3.5, 2);
}

}  // namespace korven::drawings
