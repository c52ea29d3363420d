#pragma once

#include "analysis/node_vector.hpp"
#include "drawings/diagram_frame.hpp"
#include "results/report_data.hpp"

namespace korven::drawings {

/// What one stage adds to a diagram: excavation, anchors and curves. The curves are in the stage's
/// pen but for the limit pressures.
class FaseDisegnata {
 public:
    using Valori = analysis::VettoreNodi analysis::RisultatiFase::*;

    /// @param s  number of the stage; all must outlive it
    FaseDisegnata(const results::DatiRelazione& dati, int s, const QuadroDiagramma& quadro);

    void livelloScavo() const;
    /// The anchors that the stage adds.
    void tirantiNuovi() const;

    /// The stage's values of all nodes, times `fattore`.
    void nodi(Valori valori, double fattore = 1) const;
    /// Limit and acting pressures of both sides.
    void pressioni() const;
    void taglio() const;

    [[nodiscard]] int penna() const { return 14 + s_; }

 private:
    [[nodiscard]] double profondita(int i) const { return (i - 1) * dati_.passo; }
    [[nodiscard]] int nodoTirante(int j) const;

    template <class Valore>
    void curvaPressione(int numeroPenna, bool valle, Valore valore) const;

    const results::DatiRelazione& dati_;
    const analysis::RisultatiFase& risultati_;
    const results::AzioniFase& azioni_;
    int s_;
    const QuadroDiagramma& quadro_;
};

}  // namespace korven::drawings
