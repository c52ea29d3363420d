#pragma once

#include <optional>
#include <vector>

#include "dossier/balance.hpp"

namespace korven::dossier {

/// Which limit the soil of a side has come to.
enum class LimiteTerreno { nessuno, attivo, passivo };

/// A node of a wall that moves as a mechanism. Pressures are positive towards the excavation.
struct NodoAlLimite {
    double z = 0;       ///< depth [m]
    double tratto = 0;  ///< length of wall that it stands for [m]
    double monte = 0, valle = 0, acqua = 0, costante = 0;  ///< [t/m2]
    LimiteTerreno statoMonte = LimiteTerreno::nessuno, statoValle = LimiteTerreno::nessuno;
    /// All of them on its length [t]; 0 at the point that stays and under a restraint, whose force
    /// nobody knows and which has no arm.
    double forza = 0;
};

/// What acts on such a wall, by kind and by side of the point that stays.
enum class AzioneLimite { forzaTesta, momentoTesta, monte, valle, acqua, costante, tirante };

struct ParteAlLimite {
    AzioneLimite cosa = AzioneLimite::forzaTesta;
    int tirante = 0;    ///< of `tirante`: counted from 1
    bool sotto = true;  ///< below the point that stays
    double forza = 0;   ///< [t], positive towards the excavation
    /// About the point that stays, positive the way the wall turns, so that it pushes; below 0 it
    /// resists [t m]. Of a translation the force, with the same sign [t].
    double spinta = 0;
};

/// A stage without equilibrium at the limit: why the movement is not held.
struct BilancioLimite {
    int fase = 0;
    equilibrium::Meccanismo moto{};
    std::vector<NodoAlLimite> nodi;
    std::vector<ParteAlLimite> parti;  ///< those that are not 0
    double mancante = 0;  ///< sum of `spinta` of all: what would have to be added against it
    /// Of a rotation: the sum of all forces as one force, at the end of the wall that moves most.
    /// Its opposite, added there, leaves the wall at its limit [t, m].
    double forzaRisultante = 0, zRisultante = 0;
    /// Of a rotation: what the point that stays carries then, towards the excavation. It is the
    /// rest of the sum, and between the limits of its node, since no other rotation misses more
    /// of such a force.
    double perno = 0;
};

/// @param problema  of the stage
/// @param moto      the movement that nothing holds
[[nodiscard]] BilancioLimite bilancioLimite(const equilibrium::ProblemaFase& problema,
                                            const equilibrium::Meccanismo& moto, int fase);

/// Follows a wall to its stage `fase`; nothing if that is no mechanism.
/// @param dati  with the bending stiffness of the run
[[nodiscard]] std::optional<BilancioLimite> bilancioLimite(const project::DatiProgetto& dati,
                                                           int nSeg, int fase);

}  // namespace korven::dossier
