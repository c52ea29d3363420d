#pragma once

#include "analysis/layer_soil.hpp"
#include "analysis/limit_pressures.hpp"
#include "analysis/undefined_cause.hpp"
#include "project/project_data.hpp"

namespace korven::analysis {

/// The soil on the retained side of one node. Units and signs as in StatoSuolo.
struct SuoloMonte {
    int strato = 0;  ///< the node's layer; 0: none reaches it
    double sigmaVm = 0, Ehm = 0, k0m = 0, kam = 0, kpm = 0;
    PressioniLimite limiti;
};

/// The soil on the excavated side of one node, all 0 above the excavation.
struct SuoloValle {
    double sigmaVv = 0, Ehv = 0, k0v = 0, kav = 0, kpv = 0;
    PressioniLimite limiti;
};

/// Computes the retained side at depth z. It is the same in all stages.
/// @return why a quantity has no value; `nodo` is then half filled
[[nodiscard]] Indefinito suoloMonte(const project::DatiProgetto& dati, const SuoloStrati& strati,
                                    double z, SuoloMonte& nodo);

/// Computes the excavated side at depth z in stage `fase`, with `dati.faldaValle` as its water
/// table.
/// @param monte  the retained side at this depth
/// @return as above
[[nodiscard]] Indefinito suoloValle(const project::DatiProgetto& dati, const SuoloStrati& strati,
                                    int fase, double z, const SuoloMonte& monte, SuoloValle& nodo);

/// True when every number of both sides is one.
[[nodiscard]] bool tuttoFinito(const SuoloMonte& monte, const SuoloValle& valle);

}  // namespace korven::analysis
