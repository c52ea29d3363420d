#pragma once

#include "analysis/run_observer.hpp"
#include "project/project_data.hpp"

namespace korven::analysis {

/// What becomes of the stages of a project.
struct EsitoProva {
    int faseSingolare = 0;   ///< the first that no equilibrium holds; 0: none
    bool mostrabile = true;  ///< false: moments or displacements are beyond what a report can show
};

/// Computes the stages of a project in memory as a run does, and writes nothing. Ends at the first
/// stage that fails, or where the observer stops it.
/// @param dati  a copy, which the stages change; a stiffness of 0 is taken from the section
/// @param nSeg  segments of the wall
/// @pre no input check fails, which is asserted, and no check of the soil
[[nodiscard]] EsitoProva provaFasi(project::DatiProgetto dati, int nSeg,
                                   OsservatoreCorsa& osservatore);

}  // namespace korven::analysis
