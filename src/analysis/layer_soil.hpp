#pragma once

#include "analysis/limit_pressures.hpp"
#include "analysis/subgrade_modulus.hpp"
#include "analysis/undefined_cause.hpp"
#include "project/project_data.hpp"

namespace korven::analysis {

/// What pressures and moduli take from a layer alone, whatever the depth and the stage. Retained
/// side: coefficients positive, with the slope of the ground. Excavated side: negative, level
/// ground.
struct SuoloStrato {
    double phi = 0;  ///< friction angle [rad]
    double c = 0;    ///< cohesion [t/m2]
    double k0m = 0, kam = 0, kpm = 0;
    double k0v = 0, kav = 0, kpv = 0;
    Indefinito motivoM = Indefinito::no;  ///< why kam and kpm have no value
    Indefinito motivoV = Indefinito::no;  ///< why kav and kpv have none
    CoesioneLimiti coesione;
    FattoriPortanza portanza;  ///< 0 unless the method of ks is Bowles' and there is friction
};

/// Row j is layer j. Row 0 is what a node has that no layer reaches: no friction, no cohesion; of
/// its coefficients only those of the excavated side are computed, the others are 0.
using SuoloStrati = base::Tabella<SuoloStrato, project::massimoStrati>;

/// The layers 1 to `nStrati` and row 0; rows beyond are 0.
[[nodiscard]] SuoloStrati suoloStrati(const project::DatiProgetto& dati);

}  // namespace korven::analysis
