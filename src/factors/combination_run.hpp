#pragma once

#include <optional>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "factors/factored_wall.hpp"
#include "factors/section_use.hpp"
#include "safety/diagnosis.hpp"
#include "safety/passive_use.hpp"

namespace korven::factors {

/// One stage under a combination.
struct FaseCombinazione {
    int fase = 0;
    double scavo = 0;  ///< depth of the excavation, with what was not planned [m]
    equilibrium::EsitoFase esito = equilibrium::EsitoFase::equilibrio;
    std::optional<analysis::RifiutoSuolo> rifiuto{};  ///< the soil has no value
    std::optional<safety::Diagnosi> perche{};         ///< of all others that do not stand
    safety::UsoPassiva passiva{};                     ///< of one that stands

    [[nodiscard]] bool sta() const { return esito == equilibrium::EsitoFase::equilibrio; }
};

/// The largest force of an anchor and the stage that it is in; 0 for one that is never in place.
struct TiroMassimo {
    double tiro = 0;  ///< tension positive [t]
    int fase = 0;
};

/// What a combination makes of a wall. `estremi` and `tiri` are as they were computed: the factor
/// on effects is not in them, but in the checks.
struct EsitoCombinazione {
    Combinazione combinazione;
    FattoriCarichi carichi;
    std::vector<double> inPiu;           ///< unplanned excavation [m], element 0 is stage 1
    std::vector<FaseCombinazione> fasi;  ///< up to the first that does not stand
    equilibrium::Estremi estremi;        ///< of all stages, if all stand
    std::vector<TiroMassimo> tiri;       ///< likewise, element 0 is anchor 1
    std::vector<Verifica> verifiche;     ///< likewise
    /// The earth resistance of a wall whose toe is restrained, where the combination asks for it:
    /// told, and no check. It is not the ground in front that keeps such a wall from rotating.
    std::optional<Verifica> terraSoloDetta{};

    [[nodiscard]] bool sta() const { return !fasi.empty() && fasi.back().sta(); }
    /// All stages stand and all checks are met.
    [[nodiscard]] bool verificata() const;
    /// The same; nothing where it stands and there is no check to meet.
    [[nodiscard]] std::optional<bool> giudizio() const;
    [[nodiscard]] double effetti() const { return combinazione.fattori.effetti; }
};

/// @param dati  with the bending stiffness of the run
/// @param nSeg  segments of the wall
/// @pre nothing refuses a run (`analysis::avviaCalcolo`)
[[nodiscard]] EsitoCombinazione calcola(const project::DatiProgetto& dati, int nSeg,
                                        const Combinazione& combinazione,
                                        const NaturaCarichi& natura);

}  // namespace korven::factors
