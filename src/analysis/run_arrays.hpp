#pragma once

#include <vector>

#include "analysis/iteration_state.hpp"
#include "analysis/node_vector.hpp"
#include "analysis/soil_state.hpp"
#include "analysis/solver/system_matrix.hpp"
#include "project/project_data.hpp"

namespace korven::analysis {

// Segments of the wall.
inline constexpr int minimoSegmenti = 3;
inline constexpr int massimoSegmenti = 249;          ///< 2 (n + 1) equations fill the matrix
inline constexpr int massimoSegmentiIncastro = 248;  ///< a fixed toe adds a node

/// Restraints of the wall, from the project's codes.
struct Vincoli {
    bool cernieraTesta = false;  ///< hinge at the top
    bool bloccoPiede = false;    ///< hinge or fixed toe
    bool incastroPiede = false;  ///< fixed toe
};

/// The restraints that the codes ask for: top 2 a hinge, toe 2 a hinge, 3 fixed; any other value is
/// a free end. A fixed toe is blocked as well.
[[nodiscard]] Vincoli vincoli(const project::DatiProgetto& dati);

/// The arrays of one run but the matrix. `preparaCorsa` puts them all to 0; what a stage does not
/// set again, it takes over from the stage before: `yNodo`, `yTirante`, `momentoNodo`.
///
/// Nothing is put back after the last stage: what reads the results works out the anchors'
/// `yTirante` and the nodes' layers for itself, from the result file and whether or not a run has
/// gone before.
struct VettoriCorsa {
    int nSeg = 0;
    int nNodi = 0;
    double passoNodi = 0;  ///< [m]
    Vincoli vincolo;

    StatoSuolo suolo;
    VettoreNodi EJNodo;       ///< bending stiffness [t m2]
    VettoreNodi pNodo;        ///< constant part of the net pressure [t/m2]
    VettoreNodi kNodo;        ///< coefficient of the displacement in it [t/m3]
    VettoreNodi yNodo;        ///< displacement, positive towards the excavation [m]
    VettoreNodi yPrec;        ///< displacement of the iteration before [m]
    VettoreNodi taglioNodo;   ///< shear [t]
    VettoreNodi momentoNodo;  ///< moment [t m]

    VettoreNodi termineB, soluzioneX;

    int nTirantiAttivi = 0;
    /// Displacement of each anchor's node when the anchor came into place [m].
    base::Tabella<double, project::massimoTiranti> yTirante;

    std::vector<StatiNodo> stati;         ///< of the iteration, element 0 is node 1
    std::vector<TiranteInOpera> tiranti;  ///< of the iteration, element 0 is anchor 1
};

/// The arrays of one run, 4 MB. A thread that runs again and again keeps one of these; a run begins
/// with `preparaCorsa`, whatever the one before has left.
struct ArraysCorsa : VettoriCorsa {
    /// From one stage to the next it keeps the cells that nobody clears.
    MatriceSistema matriceA;
};

/// Puts the arrays to the state before the first stage: mesh and restraints set, all else 0 that a
/// run of this mesh can read.
/// @pre `nSeg` from 3 to the capacity: asserted
void preparaCorsa(const project::DatiProgetto& dati, int nSeg, ArraysCorsa& corsa);

}  // namespace korven::analysis
