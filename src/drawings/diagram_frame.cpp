#include "drawings/diagram_frame.hpp"

#include <cmath>

#include "base/number_text.hpp"
#include "plot/plot_engine.hpp"

namespace korven::drawings {

namespace {

using plot::x0;
using plot::y0;

constexpr double altezzaNumeri = 0.2;
constexpr double taccaMinore = 0.1;
constexpr double taccaMaggiore = 0.2;
constexpr double passoProfondita = 0.1;  // [m]

double lunghezzaTacca(const Tacca& tacca) { return tacca.maggiore ? taccaMaggiore : taccaMinore; }

}  // namespace

QuadroDiagramma::QuadroDiagramma(const RigaDiagramma& riga, const AsseValori& asse,
                                 double lunghezzaParatia)
    : riga_(riga),
      asse_(asse),
      lunghezza_(lunghezzaParatia),
      scalaX_((plot::larghQuadro - 1) / (2 * asse.vMax)),
      scalaY_((plot::altQuadro - 1) / lunghezzaParatia) {}

void QuadroDiagramma::disegna() const {
    plot::plotPenna(4);
    plot::plotMuovi(x0, y0 + plot::altQuadro, plot::pennaSu);
    plot::plotMuovi(x0, y0, plot::pennaGiu);
    plot::plotMuovi(x0 + plot::larghQuadro, y0, plot::pennaGiu);

    plot::plotPenna(6);
    asseDeiValori();
    asseDelleProfondita();
    constexpr auto metri = project::unita::metri;
    const double spazioUnita = plot::larghezzaTesto(altezzaNumeri, traParentesi(metri));
    plot::testoDa(x0 - 0.1 - spazioUnita, y0 + plot::altQuadro - 0.2, altezzaNumeri,
                  metri.mostrata);
    plot::testoDa(x0 + plot::larghQuadro - 0.2, y0 - 0.3, altezzaNumeri, traParentesi(riga_.unita));

    plot::plotPenna(7);
    plot::plotMuovi(xZero, y0 + margine, plot::pennaSu);
    plot::plotMuovi(xZero, yTesta, plot::pennaGiu);
    plot::plotMuovi(xSinistra, yTesta, plot::pennaGiu);
}

void QuadroDiagramma::asseDeiValori() const {
    for (const Tacca& tacca : tacche(-asse_.vMax, asse_.vMax, asse_.passo)) {
        const double x = xSinistra + scalaX_ * (tacca.valore + asse_.vMax);
        plot::linea(x, y0, x, y0 + lunghezzaTacca(tacca));
        if (!tacca.maggiore) continue;
        const double numero = mostrato(riga_.unita, std::round(tacca.valore * 1000) / 1000);
        plot::testoCentrato(x, y0 - 1.5 * altezzaNumeri, altezzaNumeri, base::testoNumero(numero));
    }
}

void QuadroDiagramma::asseDelleProfondita() const {
    for (const Tacca& tacca : tacche(0, lunghezza_, passoProfondita)) {
        const double yTacca = y(tacca.valore);
        plot::linea(x0, yTacca, x0 + lunghezzaTacca(tacca), yTacca);
        if (tacca.maggiore)
            plot::testoCentrato(x0 - 0.5 * altezzaNumeri, yTacca, altezzaNumeri,
                                base::testoNumero(std::round(tacca.valore)), 90);
    }
}

}  // namespace korven::drawings
