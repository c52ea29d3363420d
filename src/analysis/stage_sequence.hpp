#pragma once

#include <memory>
#include <string>

#include "analysis/plastic_iteration.hpp"
#include "analysis/run_arrays.hpp"

namespace korven::analysis {

/// A stage that converges with a displacement beyond this multiple of the wall's length was
/// singular but for rounding: a failing wall on one last spring.
inline constexpr double massimoSpostamentoRelativo = 1000;

enum class EsitoFase { convergente, singolare, fermata, rifiutata };

struct RisultatoFase {
    EsitoFase esito = EsitoFase::convergente;
    EstremiIterazione estremi;            ///< of the last iteration
    std::optional<RifiutoSuolo> rifiuto;  ///< why the stage was refused
};

/// The arrays of a run before its first stage: mesh and restraints set, all else 0.
[[nodiscard]] std::unique_ptr<ArraysCorsa> preparaCorsa(const project::DatiProgetto& dati,
                                                        int nSeg);

/// Solves stage k as a whole equilibrium: sets its excavation, its water level in
/// `dati.faldaValle`, and its anchors, computes the soil afresh and iterates until no displacement
/// changes or `stopCalcolo` is set. There is no limit to the number of iterations.
///  An anchor new in this stage is put on the wall as it is at the end of the stage before, and
/// acts at once.
[[nodiscard]] RisultatoFase risolviFase(int k, project::DatiProgetto& dati, ArraysCorsa& corsa,
                                        Avanzamento& avanzamento);

}  // namespace korven::analysis
