#pragma once

#include <optional>
#include <vector>

#include "live/wall.hpp"
#include "results/structure_checks.hpp"
#include "safety/margin.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::live {

/// Where the number of a check is.
struct DoveVerifica {
    int fase = 0;  ///< 0: there is none
    double z = 0;  ///< [m]
    equilibrium::Lato lato = equilibrium::Lato::unico;
};

/// The checks of the section of a wall, by the rules of the report.
struct ControlliSezione {
    std::optional<results::ConfrontoMomenti> flessione;  ///< nothing without a section
    std::optional<structure::ConfrontoTaglio> taglio;    ///< nothing without stirrups
    DoveVerifica positivo, negativo, diTaglio;
    /// Numbers of the report; else the equilibrium solution's, the shear being the largest of all
    /// stages that stand.
    bool dellaRelazione = false;
    /// Some stage stands. Where none does the actions are 0 and mean nothing; the resistances do.
    bool conAzioni = false;
};

/// @param margine  of the same wall; nullptr while it is not known: there is no report then
[[nodiscard]] ControlliSezione controlliSezione(const PareteViva& parete,
                                                const safety::Margine* margine);

/// A stage in the N-M domain: the check of bending with its own moments.
struct FaseNelDominio {
    int fase = 0;
    double Nd = 0;  ///< design axial force [N], the same for all stages
    results::ConfrontoMomenti momenti;

    [[nodiscard]] bool dentro() const { return !momenti.fallitaPos() && !momenti.fallitaNeg(); }
};

/// The stages that stand, of the report where there is one; none without a section.
[[nodiscard]] std::vector<FaseNelDominio> fasiNelDominio(const PareteViva& parete,
                                                         const safety::Margine* margine);

using structure::sezioneCalcolabile;

}  // namespace korven::live
