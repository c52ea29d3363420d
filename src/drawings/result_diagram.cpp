#include "drawings/result_diagram.hpp"

#include <cmath>

#include "analysis/wall_mesh.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "drawings/diagram_frame.hpp"
#include "plot/plot_engine.hpp"
#include "project/units.hpp"
#include "results/working_pressures.hpp"

namespace korven::drawings {

namespace {

using analysis::Diagramma;
using Quadro = QuadroDiagramma;

constexpr int pennaLimiteAttivo = 8;
constexpr int pennaLimitePassivo = 9;

// A curve is drawn node by node; the pen is up at its first one.
class Curva {
 public:
    Curva(const Quadro& quadro, int penna) : quadro_(quadro) { plot::plotPenna(penna); }
    void punto(double valore, double z) {
        plot::plotMuovi(quadro_.x(valore), quadro_.y(z), codice_);
        codice_ = plot::pennaGiu;
    }

 private:
    const Quadro& quadro_;
    int codice_ = plot::pennaSu;
};

// Everything that one stage adds to a diagram.
class FaseDisegnata {
 public:
    FaseDisegnata(const results::DatiRelazione& dati, int s, const Quadro& quadro)
        : dati_(dati),
          risultati_(dati.fasi[static_cast<std::size_t>(s - 1)]),
          azioni_(dati.azioni[static_cast<std::size_t>(s - 1)]),
          s_(s),
          quadro_(quadro) {}

    void livelloScavo() const {
        const double y = quadro_.y(dati_.progetto.profFase[s_]);
        plot::linea(Quadro::xZero, y, Quadro::xDestra, y);
        const std::string testo = base::traduttore("Fase di scavo n.") + " " + std::to_string(s_);
        plot::testoFinoA(Quadro::xDestra, y + Quadro::altezzaEtichette / 2,
                         Quadro::altezzaEtichette, testo);
    }

    // All anchors of a stage carry the stage's number, as the engineer counts their rows.
    void tirantiNuovi() const {
        const int prima = s_ > 1 ? dati_.azioni[static_cast<std::size_t>(s_ - 2)].nTiranti : 0;
        for (int j = prima + 1; j <= azioni_.nTiranti; ++j) {
            const double y = quadro_.y(profondita(nodoTirante(j)));
            plot::linea(Quadro::xZero, y, Quadro::xSinistra, y);
            plot::testoDa(Quadro::xSinistra, y - 1.5 * Quadro::altezzaEtichette,
                          Quadro::altezzaEtichette,
                          base::traduttore("Tirante n.") + " " + std::to_string(s_));
        }
    }

    void curve(Diagramma diagramma) const {
        switch (diagramma) {
            case Diagramma::pressioni:
                return pressioni();
            case Diagramma::spostamenti:
                return semplice(risultati_.yNodo, project::centimetri);
            case Diagramma::momenti:
                return semplice(risultati_.momentoNodo, 1);
            case Diagramma::taglio:
                return taglio();
        }
    }

 private:
    [[nodiscard]] int penna() const { return 14 + s_; }
    [[nodiscard]] double profondita(int i) const { return (i - 1) * dati_.passo; }
    [[nodiscard]] int nodoTirante(int j) const {
        return analysis::nodoTirante(dati_.progetto.profTirante[j], dati_.passo);
    }

    void semplice(const analysis::VettoreNodi& valori, double fattore) const {
        Curva curva(quadro_, penna());
        for (int i = 1; i <= dati_.nNodi; ++i) curva.punto(fattore * valori[i], profondita(i));
    }

    void pressioni() const {
        using P = results::PressioniNodo;
        curvaPressione(pennaLimiteAttivo, false, [](const P& p) { return p.limitiM.attiva; });
        curvaPressione(pennaLimitePassivo, false, [](const P& p) { return p.limitiM.passiva; });
        curvaPressione(pennaLimiteAttivo, true, [](const P& p) { return p.limitiV.attiva; });
        curvaPressione(pennaLimitePassivo, true, [](const P& p) { return p.limitiV.passiva; });
        curvaPressione(penna(), false, [](const P& p) { return p.pm; });
        curvaPressione(penna(), true, [](const P& p) { return p.pv; });
    }

    // The downhill side begins at the excavation level.
    template <class Valore>
    void curvaPressione(int numeroPenna, bool valle, Valore valore) const {
        Curva curva(quadro_, numeroPenna);
        const auto& progetto = dati_.progetto;
        for (int i = 1; i <= dati_.nNodi; ++i) {
            const double z = profondita(i);
            if (valle && !(progetto.profFase[s_] <= z)) continue;
            curva.punto(valore(results::pressioniNodo(risultati_, i, progetto.metodoSpinte,
                                                      results::resistenzaNodo(progetto, z))),
                        z);
        }
    }

    // At an anchor the curve steps by its force: first the value above it, then that below.
    void taglio() const {
        Curva curva(quadro_, penna());
        const auto& progetto = dati_.progetto;
        for (int i = 1; i <= dati_.nNodi; ++i) {
            const double sotto = azioni_.taglioNodo[i];
            for (int j = 1; j <= azioni_.nTiranti; ++j) {
                if (nodoTirante(j) != i) continue;
                const double tiro =
                    progetto.pretTirante[j] +
                    progetto.rigTirante[j] * (risultati_.yNodo[i] - azioni_.yTirante[j]);
                curva.punto(sotto - tiro, profondita(i));
            }
            curva.punto(sotto, profondita(i));
        }
    }

    const results::DatiRelazione& dati_;
    const analysis::RisultatiFase& risultati_;
    const results::AzioniFase& azioni_;
    int s_;
    const Quadro& quadro_;
};

// Beyond these an axis is all ticks and its numbers fill the sheet.
void controllaDisegnabile(double vDati, double lunghezza) {
    constexpr double massimoValore = 1e12, massimaLunghezza = 1e4;
    if (!(std::fabs(vDati) <= massimoValore) || !(lunghezza <= massimaLunghezza))
        throw base::ErroreValore();
}

}  // namespace

void disegnaDiagramma(Diagramma diagramma, const results::DatiRelazione& dati, int faseGrafico) {
    const double vDati = valoreDiScala(diagramma, dati);
    const double lunghezza = dati.progetto.lunghezzaParatia;
    controllaDisegnabile(vDati, lunghezza);
    const Quadro quadro(diagramma, asseValori(vDati), lunghezza);
    const auto& nomi = analysis::nomi(diagramma);
    plot::apriFoglio(dati.progetto.titoli, base::traduttore(nomi.titolo));
    plot::statoPlot.nome = nomi.nome;
    quadro.disegna();
    for (int s = 1; s <= dati.progetto.nFasi; ++s) {
        const FaseDisegnata fase(dati, s, quadro);
        const bool scelta = faseGrafico == 0 || faseGrafico == s;
        plot::plotPenna(14 + s);
        if (scelta) fase.livelloScavo();
        if (faseGrafico == 0 || s >= faseGrafico) fase.tirantiNuovi();
        if (scelta) fase.curve(diagramma);
    }
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

void disegnaDiagramma(Diagramma diagramma) {
    disegnaDiagramma(diagramma, results::leggiRisultati(project::fileCorrente, project::Progetto),
                     project::faseGrafico);
}

}  // namespace korven::drawings
