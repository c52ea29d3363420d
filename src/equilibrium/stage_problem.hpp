#pragma once

#include <vector>

#include "analysis/iteration_state.hpp"
#include "analysis/wall_mesh.hpp"

namespace korven::equilibrium {

/// One side of a node. Its pressure falls with the displacement y of the node, positive towards the
/// excavation:
///
///     p(y) = riposo + Eh y, not below `minimo` and not above `massimo`
///
/// On the retained side `minimo` is the active limit and `massimo` the passive one; on the
/// excavated side, where pressures are negative, the other way round.
struct LatoNodo {
    double riposo = 0;               ///< pressure at rest [t/m2]
    double Eh = 0;                   ///< modulus [t/m3], not positive
    double minimo = 0, massimo = 0;  ///< limits [t/m2]

    /// The pressure at y [t/m2]; adds -dp/dy at y [t/m3] to `rigidezza`.
    double pressione(double y, double& rigidezza) const {
        const double prova = riposo + y * Eh;
        if (prova < minimo) return minimo;
        if (prova > massimo) return massimo;
        rigidezza -= Eh;
        return prova;
    }
    [[nodiscard]] double pressione(double y) const {
        double rigidezza = 0;
        return pressione(y, rigidezza);
    }
    [[nodiscard]] double rigidezza(double y) const {
        double k = 0;
        pressione(y, k);
        return k;
    }
    /// What the pressure tends to when the node moves without end [t/m2].
    /// @param verso  1 towards the excavation, -1 away from it
    [[nodiscard]] double limite(int verso) const {
        if (Eh == 0) return pressione(0);
        return verso > 0 ? minimo : massimo;
    }
    /// True if p falls or stays wherever y grows: the modulus has its sign and the limits their
    /// order, or p is the same everywhere.
    [[nodiscard]] bool monotono() const {
        return minimo == massimo || Eh == 0 || (Eh < 0 && minimo < massimo);
    }
};

/// One node of a stage.
struct NodoFase {
    double peso = 0;   ///< tributary length: the step, half of it at the ends [m]
    double acqua = 0;  ///< net water pressure, positive towards the excavation [t/m2]
    LatoNodo monte, valle;
    bool vincolato = false;  ///< a restraint takes the place of the soil's springs
};

/// An anchor in place.
struct TiranteFase {
    int nodo = -1;              ///< counted from 0; -1: beside the wall, without effect
    double rigidezza = 0;       ///< [t/m]
    double pretensione = 0;     ///< [t]
    double riferimento = 0;     ///< displacement of its node when it came into place [m]
    bool compressione = false;  ///< false: slack where it would be compressed
    double volte = 1;           ///< times that the force counts on its node

    /// Force at displacement y of its node, positive in tension [t].
    [[nodiscard]] double tiro(double y) const {
        const double F = pretensione + rigidezza * (y - riferimento);
        return F >= 0 || compressione ? F : 0;
    }
    [[nodiscard]] double rigidezzaIn(double y) const {
        return pretensione + rigidezza * (y - riferimento) >= 0 || compressione ? rigidezza : 0;
    }
};

/// All that one stage's equilibrium depends on. Forces in t and per metre of wall, lengths in m;
/// forces and displacements are positive towards the excavation.
struct ProblemaFase {
    double h = 0;         ///< distance of the nodes
    double EJ = 0;        ///< bending stiffness [t m2]
    double costante = 0;  ///< constant pressure on all nodes [t/m2]
    /// Spring of a restraint, over the tributary length: that of the run, or a stiffer one [t/m3].
    double kVincolo = -analysis::kVincolo;
    double H = 0;     ///< force at the top [t]
    double M = 0;     ///< moment at the top [t m]
    int nParete = 0;  ///< nodes of the wall; with a fixed toe `nodi` has one more
    std::vector<NodoFase> nodi;
    std::vector<TiranteFase> tiranti;

    [[nodiscard]] int n() const { return static_cast<int>(nodi.size()); }
    [[nodiscard]] double profondita(int i) const { return i * h; }
    /// The spring of a node's restraint; 0 without one [t/m].
    [[nodiscard]] double molla(const NodoFase& nodo) const {
        return nodo.vincolato ? kVincolo * nodo.peso : 0;
    }
};

/// What makes the data of a stage no stable wall.
enum class Instabile {
    no,
    modulo,   ///< a soil modulus of the wrong sign
    limiti,   ///< an active limit beyond the passive one
    tirante,  ///< an anchor of negative stiffness
    parete,   ///< a bending stiffness that is not positive
};

/// The first such thing and where it is.
struct DatoInstabile {
    Instabile che = Instabile::no;
    int nodo = 0;       ///< counted from 0; of the soil
    bool monte = true;  ///< side of the soil
    int tirante = 0;    ///< counted from 1
    /// The value as it is stored: the modulus [t/m3], the active limit [t/m2], the stiffness of the
    /// anchor [t/m] or of the wall [t m2].
    double valore = 0;
    double passivo = 0;     ///< of `limiti`: the passive limit [t/m2]
    double profondita = 0;  ///< of the node [m]
};

/// Looks for data whose energy is not convex, so that an equilibrium need be neither certain nor
/// the only one. A restrained node is passed over: its soil reacts no more.
[[nodiscard]] DatoInstabile datoInstabile(const ProblemaFase& problema);

}  // namespace korven::equilibrium
