#pragma once

#include <optional>
#include <string_view>

#include "equilibrium/staged_equilibrium.hpp"
#include "project/project_data.hpp"

namespace korven::safety {

/// What became of a run of the program.
enum class Causa {
    eseguito,      ///< all stages came to rest
    rifiutato,     ///< an input check or the soil refused it
    meccanismo,    ///< a stage has no equilibrium
    oscilla,       ///< every stage has one, the iteration does not find it
    fermato,       ///< the user stopped it
    nonDefinito,   ///< data for which no equilibrium is certain
    nessunNumero,  ///< numbers beyond all use
};

/// The stable word for it, in every language the same: "eseguito", "non_definito", ...
[[nodiscard]] std::string_view parola(Causa causa);

/// Why a stage of the specified run found no rest, by the certain method.
struct Diagnosi {
    Causa causa = Causa::oscilla;
    int fase = 0;  ///< the stage that is no equilibrium, or the one asked about
    std::optional<equilibrium::Meccanismo> moto;  ///< of a mechanism
    /// Of a mechanism: the length from which on the wall stands, if a longer one does [m].
    std::optional<double> lunghezza;
    equilibrium::DatoInstabile instabile;  ///< of `nonDefinito`
    double spostamento = 0;  ///< of `oscilla`: largest displacement of the stage in size [m]
};

/// Follows the wall to stage `fase`.
/// @param dati  with the bending stiffness of the run
/// @pre the soil of these stages has its values, as the run found: asserted
[[nodiscard]] Diagnosi diagnosi(const project::DatiProgetto& dati, int nSeg, int fase);

}  // namespace korven::safety
