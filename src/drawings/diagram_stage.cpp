#include "drawings/diagram_stage.hpp"

#include "analysis/wall_mesh.hpp"
#include "base/translated_texts.hpp"
#include "plot/plot_engine.hpp"
#include "results/shear_extremes.hpp"
#include "results/working_pressures.hpp"

namespace korven::drawings {

namespace {

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

}  // namespace

FaseDisegnata::FaseDisegnata(const results::DatiRelazione& dati, int s,
                             const QuadroDiagramma& quadro)
    : dati_(dati),
      risultati_(dati.fasi[static_cast<std::size_t>(s - 1)]),
      azioni_(dati.azioni[static_cast<std::size_t>(s - 1)]),
      s_(s),
      quadro_(quadro) {}

int FaseDisegnata::nodoTirante(int j) const {
    return analysis::nodoTirante(dati_.progetto.profTirante[j], dati_.passo);
}

void FaseDisegnata::livelloScavo() const {
    const double y = quadro_.y(dati_.progetto.profFase[s_]);
    plot::linea(Quadro::xZero, y, Quadro::xDestra, y);
    const std::string testo = base::traduttore("Fase di scavo n.") + " " + std::to_string(s_);
    plot::testoFinoA(Quadro::xDestra, y + Quadro::altezzaEtichette / 2, Quadro::altezzaEtichette,
                     testo);
}

// All anchors of a stage carry the stage's number, as the engineer counts their rows.
void FaseDisegnata::tirantiNuovi() const {
    const int prima = s_ > 1 ? dati_.azioni[static_cast<std::size_t>(s_ - 2)].nTiranti : 0;
    for (int j = prima + 1; j <= azioni_.nTiranti; ++j) {
        const double y = quadro_.y(profondita(nodoTirante(j)));
        plot::linea(Quadro::xZero, y, Quadro::xSinistra, y);
        plot::testoDa(Quadro::xSinistra, y - 1.5 * Quadro::altezzaEtichette,
                      Quadro::altezzaEtichette,
                      base::traduttore("Tirante n.") + " " + std::to_string(s_));
    }
}

void FaseDisegnata::nodi(Valori valori, double fattore) const {
    Curva curva(quadro_, penna());
    for (int i = 1; i <= dati_.nNodi; ++i)
        curva.punto(fattore * (risultati_.*valori)[i], profondita(i));
}

// The downhill side begins at the excavation level.
template <class Valore>
void FaseDisegnata::curvaPressione(int numeroPenna, bool valle, Valore valore) const {
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

void FaseDisegnata::pressioni() const {
    using P = results::PressioniNodo;
    curvaPressione(pennaLimiteAttivo, false, [](const P& p) { return p.limitiM.attiva; });
    curvaPressione(pennaLimitePassivo, false, [](const P& p) { return p.limitiM.passiva; });
    curvaPressione(pennaLimiteAttivo, true, [](const P& p) { return p.limitiV.attiva; });
    curvaPressione(pennaLimitePassivo, true, [](const P& p) { return p.limitiV.passiva; });
    curvaPressione(penna(), false, [](const P& p) { return p.pm; });
    curvaPressione(penna(), true, [](const P& p) { return p.pv; });
}

// At an anchor the curve steps by its force: first the value above it, then that below.
void FaseDisegnata::taglio() const {
    Curva curva(quadro_, penna());
    const auto& progetto = dati_.progetto;
    for (int i = 1; i <= dati_.nNodi; ++i) {
        const double sotto = azioni_.taglioNodo[i];
        for (int j = 1; j <= azioni_.nTiranti; ++j) {
            if (nodoTirante(j) != i) continue;
            const double tiro =
                results::tiroNelTaglio(progetto, j, risultati_.yNodo[i], azioni_.yTirante[j]);
            curva.punto(sotto - tiro, profondita(i));
        }
        curva.punto(sotto, profondita(i));
    }
}

}  // namespace korven::drawings
