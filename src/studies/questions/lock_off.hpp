#pragma once

#include <optional>
#include <string>
#include <vector>

#include "project/project_data.hpp"

namespace korven::studies {

/// What is found of the prestress for which an anchor has a wanted force.
enum class EsitoBloccaggio {
    trovato,
    maiInOpera,  ///< no stage has the anchor
    primaCade,   ///< a stage before the anchor's first is no equilibrium
    maiInPiedi,  ///< the anchor's first stage is none with any prestress
    sotto,       ///< the force is larger without prestress, or with the least that holds the wall
    sopra,       ///< the force is not reached with the largest prestress that the wall bears
};

struct Bloccaggio {
    EsitoBloccaggio esito = EsitoBloccaggio::trovato;
    int fase = 0;            ///< the first stage with the anchor; of `primaCade` the one that falls
    double pretensione = 0;  ///< of `trovato`, as its file keeps it [t]
    double forza = 0;        ///< with it, at the end of that stage [t]
    /// Its force at the end of each stage from that one on, as far as they stand [t].
    std::vector<double> forze{};
    std::string perche{};  ///< why the stage after them does not stand; empty if all stand
    /// What can be reached, of `sotto` and `sopra`: prestresses between which the stage is in
    /// equilibrium, and the forces at these ends [t].
    double pretMinima = 0, pretMassima = 0, forzaMinima = 0, forzaMassima = 0;
};

/// The prestress for which the force of an anchor at the end of its first stage is `forza`.
///
/// That force never falls as the prestress grows. The stage minimises a convex energy of the
/// displacements, to which the prestress p adds -p y at the anchor; so y at the anchor does not
/// grow with p, and neither does what the rest of the wall pushes back with, which is the force
/// with its sign turned. So the root is bracketed between prestresses at which the stage is in
/// equilibrium and closed in by TOMS 748 (Alefeld, Potra & Shi 1995), as Boost.Math has it.
/// @param dati     with the bending stiffness of the run
/// @param tirante  from 1 to its `nTiranti`
/// @param forza    above 0 [t]
[[nodiscard]] Bloccaggio cercaBloccaggio(const project::DatiProgetto& dati, int nSeg, int tirante,
                                         double forza);

}  // namespace korven::studies
