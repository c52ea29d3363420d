#pragma once

#include <optional>
#include <vector>

#include "project/project_data.hpp"
#include "review/remark.hpp"
#include "safety/margin.hpp"
#include "structure/interaction_domain.hpp"

namespace korven::live {

/// What is computed once typing rests, since it takes longer than a key.
struct DomandaLenta {
    int numero = 0;  ///< by which the answer is known
    project::DatiProgetto dati;
    int nSeg = 0;  ///< 0: there is no wall to compute, but a section
};

/// The answer. All parts are those of the same data.
struct RisultatiLenti {
    std::optional<safety::Margine> margine;        ///< nothing where there is none to compute
    review::Osservazioni osservazioni;             ///< on the results
    std::vector<structure::PuntoDominio> dominio;  ///< of the section; empty for one without
};

/// Computes the answer, in any thread. Numbers beyond all use give none: nobody has asked for them.
[[nodiscard]] RisultatiLenti calcolaLenti(const DomandaLenta& domanda);

}  // namespace korven::live
