#pragma once

#include <optional>

#include "analysis/plastic_iteration.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/run_observer.hpp"
#include "analysis/stage_results.hpp"

namespace korven::analysis {

/// A stage that converges with a displacement beyond this multiple of the wall's length was
/// singular but for rounding: a failing wall on one last spring.
inline constexpr double massimoSpostamentoRelativo = 1000;

enum class EsitoFase { convergente, singolare, fermata, rifiutata };

/// What became of one stage.
struct FaseCalcolata {
    int fase = 0;
    EsitoFase esito = EsitoFase::convergente;
    int iterazioni = 0;                   ///< solves that were finished
    EstremiIterazione estremi;            ///< of the last of them
    std::optional<RifiutoSuolo> rifiuto;  ///< why the stage was refused
    RisultatiFase risultati;              ///< its table; all 0 unless it came to rest
};

/// Solves stage k as a whole equilibrium: sets its excavation, its water level in
/// `dati.faldaValle`, and its anchors, computes the soil afresh and iterates until no displacement
/// changes or the observer asks for a stop. There is no limit to the number of iterations.
///
/// An anchor new in this stage is put on the wall as it is at the end of the stage before, and acts
/// at once.
[[nodiscard]] FaseCalcolata risolviFase(int k, project::DatiProgetto& dati, ArraysCorsa& corsa,
                                        OsservatoreCorsa& osservatore);

}  // namespace korven::analysis
