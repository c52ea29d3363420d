#pragma once

#include <optional>

#include "analysis/limit_pressures.hpp"
#include "analysis/node_vector.hpp"
#include "analysis/undefined_cause.hpp"
#include "project/project_data.hpp"

namespace korven::analysis {

/// The soil values of all nodes in one stage. Pressures and stresses in t/m2, moduli in t/m3; the
/// suffix m is the retained side (coefficients and stresses positive), v the excavated side
/// (coefficients negative, all 0 above the excavation); both moduli are negative.
struct StatoSuolo {
    VettoreNodi sigmaVm, Ehm, k0m, kam, kpm;
    VettoreNodi sigmaVv, Ehv, k0v, kav, kpv;
    VettoreNodi phiNodo;     ///< friction angle of the node's layer [rad]
    VettoreNodi cNodo;       ///< cohesion of the node's layer [t/m2]
    VettoreNodi acquaNetta;  ///< net water pressure, positive towards the excavation [t/m2]
    base::Tabella<PressioniLimite, capacitaNodi> limitiM, limitiV;
};

/// A quantity without a value at a depth.
struct RifiutoSuolo {
    double profondita;  ///< [m]
    Indefinito motivo;
};

/// Computes all soil values of stage `fase` afresh, with `dati.faldaValle` as the water table of
/// the excavated side. Nothing of it depends on displacements.
/// @param passoNodi  distance of the nodes [m]
/// @return the first quantity without a value, from the top down; `suolo` is then half filled
[[nodiscard]] std::optional<RifiutoSuolo> calcolaSuolo(const project::DatiProgetto& dati, int fase,
                                                       int nNodi, double passoNodi,
                                                       StatoSuolo& suolo);

}  // namespace korven::analysis
