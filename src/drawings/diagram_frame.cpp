#include "drawings/diagram_frame.hpp"

#include <algorithm>
#include <cmath>

#include "base/number_text.hpp"
#include "plot/plot_engine.hpp"
#include "project/units.hpp"
#include "results/working_pressures.hpp"

namespace korven::drawings {

namespace {

using analysis::Diagramma;
using plot::x0;
using plot::y0;

constexpr double altezzaNumeri = 0.2;
constexpr double taccaMinore = 0.1;
constexpr double taccaMaggiore = 0.2;
constexpr double passoProfondita = 0.1;  // [m]

struct Estremi {
    double min = 1e30, max = -1e30;
};

// Extremes of one result over all nodes of all stages.
Estremi estremi(const results::DatiRelazione& dati,
                analysis::VettoreNodi analysis::RisultatiFase::*colonna, double fattore) {
    Estremi e;
    for (const auto& fase : dati.fasi)
        for (int i = 1; i <= dati.nNodi; ++i) {
            const double valore = fattore * (fase.*colonna)[i];
            e = {std::min(e.min, valore), std::max(e.max, valore)};
        }
    return e;
}

double pressioneAlPiede(const results::DatiRelazione& dati) {
    const results::Resistenza terreno =
        results::resistenzaNodo(dati.progetto, (dati.nNodi - 1) * dati.passo);
    return results::pressioniNodo(dati.fasi.back(), dati.nNodi, dati.progetto.metodoSpinte, terreno)
        .limitiM.passiva;
}

double lunghezzaTacca(const Tacca& tacca) { return tacca.maggiore ? taccaMaggiore : taccaMinore; }

}  // namespace

double valoreDiScala(Diagramma diagramma, const results::DatiRelazione& dati) {
    using Fase = analysis::RisultatiFase;
    switch (diagramma) {
        case Diagramma::pressioni:
            return pressioneAlPiede(dati);
        case Diagramma::spostamenti: {
            const auto [min, max] = estremi(dati, &Fase::yNodo, project::centimetri);
            return std::fabs(min) > max ? min : max;
        }
        case Diagramma::momenti: {
            const auto [min, max] = estremi(dati, &Fase::momentoNodo, 1);
            return std::max(std::fabs(max), std::fabs(min));
        }
        case Diagramma::taglio:
            break;
    }
    return dati.Vmax;
}

QuadroDiagramma::QuadroDiagramma(Diagramma diagramma, const AsseValori& asse,
                                 double lunghezzaParatia)
    : diagramma_(diagramma),
      asse_(asse),
      lunghezza_(lunghezzaParatia),
      verso_(diagramma == Diagramma::pressioni ? -1 : 1),
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
    const double spazioUnita = plot::larghezzaTesto(altezzaNumeri, "[m]");
    plot::testoDa(x0 - 0.1 - spazioUnita, y0 + plot::altQuadro - 0.2, altezzaNumeri, "m");
    plot::testoDa(x0 + plot::larghQuadro - 0.2, y0 - 0.3, altezzaNumeri,
                  analysis::nomi(diagramma_).unita);

    plot::plotPenna(7);
    plot::plotMuovi(xZero, y0 + margine, plot::pennaSu);
    plot::plotMuovi(xZero, yTesta, plot::pennaGiu);
    plot::plotMuovi(xSinistra, yTesta, plot::pennaGiu);
}

void QuadroDiagramma::asseDeiValori() const {
    // The numbers are kN, the values tonnes; displacements are centimetres in both.
    const double fattore = diagramma_ == Diagramma::spostamenti ? 1 : project::kilonewton;
    for (const Tacca& tacca : tacche(-asse_.vMax, asse_.vMax, asse_.passo)) {
        const double x = xSinistra + scalaX_ * (tacca.valore + asse_.vMax);
        plot::linea(x, y0, x, y0 + lunghezzaTacca(tacca));
        if (!tacca.maggiore) continue;
        const double numero = std::round(tacca.valore * 1000) / 1000 * fattore;
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
