#pragma once

#include <vector>

#include "equilibrium/staged_equilibrium.hpp"

namespace korven::dossier {

/// A force on one metre of wall [t], positive towards the excavation, and its moment about the head
/// of the wall [t m], positive where a positive force acts below the head.
struct Risultante {
    double forza = 0;
    double momento = 0;

    void aggiungi(double F, double z) {
        forza += F;
        momento += F * z;
    }
    Risultante& operator+=(const Risultante& altra) {
        forza += altra.forza;
        momento += altra.momento;
        return *this;
    }
};

/// The balance of one stage in equilibrium: all that acts on the wall from outside, as the nodes
/// carry it. The remainder is what rounding leaves.
///
/// Pressures are added up by trapezoids between the nodes, of the forces p and of their moments p
/// z. With a fixed toe the mesh goes on by one segment below the wall, and the last node of the
/// wall carries half of it, with its own pressure: that is beyond the trapezoids, and the restraint
/// takes it at once, so that no moment or shear of the wall has anything of it.
struct BilancioFase {
    int fase = 0;
    double passo = 0;                 ///< distance of the nodes [m]
    Risultante testa;                 ///< force and moment at the head
    Risultante monte;                 ///< soil of the retained side
    Risultante valle;                 ///< soil of the excavated side
    Risultante acqua;                 ///< net water pressure
    Risultante costante;              ///< constant pressure
    Risultante oltrePiede;            ///< all pressures of the toe, on half a segment below it
    std::vector<Risultante> tiranti;  ///< in place; element 0 is anchor 1
    Risultante cerniera;              ///< reaction of a hinge at the head
    Risultante piede;                 ///< reaction force of a restraint of the toe
    /// Moment of a fixed toe, without a force: the moment of the last node, turned round.
    Risultante incastro;
    Risultante resto;  ///< sum of all

    /// The largest of the parts in size, both ways: what the remainder is small beside.
    [[nodiscard]] Risultante massima() const;
};

/// @param problema  of the stage
/// @param y         displacements of all nodes of the system [m]
/// @param fase      the same stage, in equilibrium: asserted
[[nodiscard]] BilancioFase bilancio(const equilibrium::ProblemaFase& problema,
                                    const std::vector<double>& y,
                                    const equilibrium::FaseEquilibrio& fase);

/// Follows a wall through its stages.
/// @param dati  with the bending stiffness of the run
/// @param fasi  how many stages stand
[[nodiscard]] std::vector<BilancioFase> bilanci(const project::DatiProgetto& dati, int nSeg,
                                                int fasi);

}  // namespace korven::dossier
