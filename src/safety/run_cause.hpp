#pragma once

#include <string>

#include "analysis/watch/run_end.hpp"
#include "safety/diagnosis.hpp"

namespace korven::safety {

/// What became of a run of the specified method, and what is said of it beside its messages.
struct CausaCorsa {
    Causa causa = Causa::eseguito;
    /// One line: of a stage that is singular or reaches the limit of iterations, what the certain
    /// equilibrium says of it. Else empty: a refusal has its message, and the user who stopped a
    /// run knows why.
    std::string frase;
    std::string breve = {};  ///< the same in few words
};

/// @param dati  the project of the run, with the bending stiffness that it had
/// @param nSeg  segments of the wall
[[nodiscard]] CausaCorsa causaCorsa(const analysis::FineCorsa& fine,
                                    const project::DatiProgetto& dati, int nSeg);

/// The same with the number of segments that a run takes now.
[[nodiscard]] CausaCorsa causaCorsa(const analysis::FineCorsa& fine,
                                    const project::DatiProgetto& dati);

}  // namespace korven::safety
