#pragma once

#include "analysis/run_observer.hpp"
#include "project/project_data.hpp"

namespace korven::studies {

/// How the two ways to the equilibrium of one wall compare.
enum class Accordo {
    uguali,       ///< both stand with the same displacements, or neither has numbers
    senzaRiposo,  ///< the wall stands, the specified run finds no rest: nothing to compare
    incerto,      ///< the run comes to rest on data whose equilibrium is not certain
    verdetto,     ///< the run comes to rest where there is no equilibrium
    spostamenti,  ///< displacements differ by more than `tolleranza`
};

/// Both ways of one wall, compared.
struct EsitoControllo {
    Accordo accordo = Accordo::uguali;
    int fase = 0;        ///< where they differ most; 0: nowhere
    double scarto = 0;   ///< largest difference of a node [m]
    double ammesso = 0;  ///< what is allowed there [m]

    [[nodiscard]] bool diversi() const {
        return accordo == Accordo::verdetto || accordo == Accordo::spostamenti;
    }
};

/// By how much the displacements of a stage may differ [m]: ten times the run's own tolerance, and
/// a millionth of the largest of the stage, since with a fixed toe the run's solver leaves up to a
/// tenth of that.
[[nodiscard]] double tolleranza(double massimo);

/// Computes a wall both ways.
/// @param dati         with the bending stiffness of the run
/// @param osservatore  follows the specified run, and may stop it: it then counts as without rest
/// @pre nothing refuses a run
[[nodiscard]] EsitoControllo controlla(const project::DatiProgetto& dati, int nSeg,
                                       analysis::OsservatoreCorsa& osservatore);

}  // namespace korven::studies
