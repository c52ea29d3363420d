#include "drawings/result_diagram.hpp"

#include <cmath>

#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "drawings/diagram_rows.hpp"
#include "drawings/diagram_stage.hpp"
#include "plot/plot_engine.hpp"

namespace korven::drawings {

namespace {

// Beyond these an axis is all ticks and its numbers fill the sheet.
void controllaDisegnabile(double vDati, double lunghezza) {
    constexpr double massimoValore = 1e12, massimaLunghezza = 1e4;
    if (!(std::fabs(vDati) <= massimoValore) || !(lunghezza <= massimaLunghezza))
        throw base::ErroreValore();
}

}  // namespace

void disegnaDiagramma(analysis::Diagramma diagramma, const results::DatiRelazione& dati,
                      int faseGrafico) {
    const RigaDiagramma& riga = rigaDiagramma(diagramma);
    const double vDati = riga.valoreDiScala(dati);
    const double lunghezza = dati.progetto.lunghezzaParatia;
    controllaDisegnabile(vDati, lunghezza);
    const QuadroDiagramma quadro(riga, asseValori(vDati), lunghezza);
    plot::apriFoglio(dati.progetto.titoli, base::traduttore(riga.titolo));
    plot::statoPlot.nome = riga.nome.italiano;
    quadro.disegna();
    for (int s = 1; s <= dati.progetto.nFasi; ++s) {
        const FaseDisegnata fase(dati, s, quadro);
        const bool scelta = faseGrafico == 0 || faseGrafico == s;
        plot::plotPenna(fase.penna());
        if (scelta) fase.livelloScavo();
        if (faseGrafico == 0 || s >= faseGrafico) fase.tirantiNuovi();
        if (scelta) riga.curve(fase);
    }
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

void disegnaDiagramma(analysis::Diagramma diagramma) {
    disegnaDiagramma(diagramma, results::leggiRisultati(project::fileCorrente, project::Progetto),
                     project::faseGrafico);
}

}  // namespace korven::drawings
