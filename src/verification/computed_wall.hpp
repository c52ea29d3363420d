#pragma once

#include <optional>
#include <vector>

#include "analysis/staged_run.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "structure/limit_search.hpp"
#include "verification/case.hpp"

namespace korven::verification {

/// Iterations of one stage after which the specified run has no value.
inline constexpr int massimeIterazioni = 1000;

/// A wall whose numbers are computed when they are first asked for. In memory: no file is written
/// or read, and no state of the program used.
class PareteCalcolata {
 public:
    explicit PareteCalcolata(const Parete& parete) : parete_(parete) {}

    [[nodiscard]] const project::DatiProgetto& dati() const { return parete_.dati; }
    [[nodiscard]] int nSeg() const { return parete_.segmenti; }
    [[nodiscard]] double h() const { return dati().lunghezzaParatia / nSeg(); }
    /// The node of a depth, counted from 0.
    [[nodiscard]] std::size_t nodo(double z) const;

    /// A stage of the specified run; nullptr if it did not come to rest.
    [[nodiscard]] const analysis::RisultatiFase* corsa(int fase);
    /// Force of an anchor in a stage of the specified run, by the anchor's law from the
    /// displacements of the run [t].
    [[nodiscard]] std::optional<double> tiroCorsa(int fase, int tirante);
    /// A stage of the equilibrium solution, whatever is known of it; nullptr beyond the last.
    [[nodiscard]] const equilibrium::FaseEquilibrio* faseEquilibrio(int fase);
    /// The same, if it stands.
    [[nodiscard]] const equilibrium::FaseEquilibrio* inEquilibrio(int fase);
    /// Resistances of the section [N mm].
    [[nodiscard]] const structure::MomentiResistenti& resistenze();

 private:
    const Parete& parete_;
    std::optional<analysis::EsitoCorsa> corsa_;
    std::optional<std::vector<equilibrium::FaseEquilibrio>> equilibrio_;
    std::optional<structure::MomentiResistenti> resistenze_;
};

}  // namespace korven::verification
