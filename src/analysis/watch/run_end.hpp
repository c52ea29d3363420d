#pragma once

#include "analysis/stage_sequence.hpp"

namespace korven::analysis {

enum class ModoFine {
    compiuta,  ///< all stages came to rest, or nothing had to be computed
    rifiutata,
    singolare,
    oltreLimite,    ///< a stage found no rest within a limit of iterations
    fermata,        ///< by the user
    nonMostrabile,  ///< with numbers that no report can show
};

/// How a run ended, and in which stage.
struct FineCorsa {
    ModoFine modo = ModoFine::compiuta;
    int fase = 0;        ///< 0: before the first
    int iterazioni = 0;  ///< of that stage, where it found no rest
};

/// The end that a stage without rest brings.
/// @param oltreLimite  a limit of iterations asked for the stop, not the user
[[nodiscard]] inline FineCorsa fineCorsa(const FaseCalcolata& fase, bool oltreLimite) {
    switch (fase.esito) {
        case EsitoFase::convergente:
            break;
        case EsitoFase::singolare:
            return {ModoFine::singolare, fase.fase};
        case EsitoFase::fermata:
            return {oltreLimite ? ModoFine::oltreLimite : ModoFine::fermata, fase.fase,
                    fase.iterazioni};
        case EsitoFase::rifiutata:
            return {ModoFine::rifiutata, fase.fase};
    }
    return {};
}

}  // namespace korven::analysis
