#pragma once

#include <string>

#include "analysis/iteration_state.hpp"
#include "project/project_data.hpp"
#include "safety/diagnosis.hpp"

namespace korven::safety {

/// Follows a run and says of a stage that finds no rest what the equilibrium solution knows of it:
/// that the wall is a mechanism, or that it stands and only the iteration flips.
class FaseSenzaRiposo {
 public:
    /// Iterations of one stage after which the equilibrium is asked, once.
    static constexpr int iterazioniPrima = iterazioniOscillazione;

    /// Takes one iteration.
    /// @param dati  the project of the run
    /// @return the line to show from now on; empty for a stage of fewer iterations
    const std::string& riga(const analysis::StatoIterazione& stato,
                            const project::DatiProgetto& dati);

 private:
    std::string riga_;
    int chiesta_ = 0;  // the stage that the line is of
};

}  // namespace korven::safety
