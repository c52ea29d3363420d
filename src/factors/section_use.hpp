#pragma once

#include <optional>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "factors/factor_set.hpp"
#include "project/project_data.hpp"

namespace korven::factors {

/// What is checked.
enum class Oggetto {
    momentoPositivo,
    momentoNegativo,
    bielle,    ///< shear: struts of concrete
    armatura,  ///< shear: reinforcement
    terra,     ///< earth resistance in front of the wall
};

/// One check of a combination. Moments in t m, shears in t, per metre of wall, the earth resistance
/// as a share of the passive limit; design value and resistance have the same sign.
struct Verifica {
    Oggetto oggetto = Oggetto::momentoPositivo;
    double progetto = 0;
    double resistenza = 0;
    bool verificata = false;
    int fase = 0;  ///< where the design value is; 0: nowhere, it is 0
    double z = 0;  ///< [m]
    equilibrium::Lato lato = equilibrium::Lato::unico;
    double perAssiale = 1;  ///< of a moment: the factor on the axial force that decides

    /// Design value over resistance; nothing where that is 0.
    [[nodiscard]] std::optional<double> uso() const;
};

/// The checks of the section by the rules of the report, with the factors of the combination in the
/// place of its fixed 1.4, and the shear of all stages: bending both ways (the negative side only
/// if a negative moment acts), shear where there are stirrups; none without a section.
///
/// The bending resistance is the smaller of two: with the axial force times its unfavourable factor
/// (`testaPermanente`) and with the force as it is, since more compression may help or harm.
/// @param estremi  without the factor on effects
[[nodiscard]] std::vector<Verifica> verificheSezione(const project::DatiProgetto& dati,
                                                     const Fattori& fattori,
                                                     const equilibrium::Estremi& estremi);

/// The check of the earth resistance: the share of the passive limit that is used, times the factor
/// on effects, against 1 over the factor on earth resistance.
/// @param quota  the largest of all stages
/// @param fase   the stage that it is in
/// @pre the combination asks for it: asserted
[[nodiscard]] Verifica verificaTerra(const Fattori& fattori, double quota, int fase);

}  // namespace korven::factors
