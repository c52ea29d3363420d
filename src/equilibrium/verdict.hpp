#pragma once

#include <optional>

#include "equilibrium/stage_problem.hpp"

namespace korven::equilibrium {

/// A rigid movement that nothing holds.
struct Meccanismo {
    bool traslazione = false;  ///< else a rotation
    double profondita = 0;     ///< of the point that stays, for a rotation [m]
    /// 1: towards the excavation, for a rotation the part below the point that stays; -1 the other
    /// way.
    int verso = 1;
    /// What would have to be added against the movement: a force for a translation [t], a moment
    /// about the point that stays for a rotation [t m].
    double mancante = 0;

    /// Movement of a point of the wall, up to a factor.
    [[nodiscard]] double spostamento(double z) const {
        return traslazione ? verso : verso * (z - profondita);
    }
};

/// Whether the wall has an equilibrium, exactly and without a solve. Bending holds every movement
/// but the rigid ones a + b z. Along a rigid movement the force of a node tends to a limit: its
/// soil to that of the side it moves to, a stretched anchor and a restraint to a hold without
/// bound, a slack anchor to 0. The energy is convex, so a minimum exists if and only if every rigid
/// movement is held: the sum of limit force times movement is below 0. The sum is linear in a and b
/// between movements whose point that stays is a node; these, both ways, and the two translations
/// decide.
///
/// @pre nothing in the stage is unstable (`datoInstabile`)
/// @return the movement that most is missing for, per unit of the largest displacement along the
///         wall; nothing if all are held
[[nodiscard]] std::optional<Meccanismo> meccanismo(const ProblemaFase& problema);

}  // namespace korven::equilibrium
