#pragma once

#include <optional>
#include <string_view>

#include "analysis/watch/run_end.hpp"
#include "equilibrium/limit_parts.hpp"
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

/// The stable word for what is known of a stage: "equilibrio", "meccanismo", "non_definito",
/// "nessun_numero".
[[nodiscard]] std::string_view parola(equilibrium::EsitoFase esito);

/// What keeps the specified run from the equilibrium of a stage that has one.
enum class Ostacolo {
    oscillazione,  ///< states change to and fro
    singolare,     ///< a system on the way is singular
    limite,        ///< its limit of iterations, before they could be said to go to and fro
};

/// Iterations after which a stage that is not at rest counts as one that goes to and fro; what
/// comes to rest does so in a tenth of them.
inline constexpr int iterazioniOscillazione = 200;

/// The one that such an end of a run tells of.
[[nodiscard]] Ostacolo ostacolo(const analysis::FineCorsa& fine);

/// Why a stage is no equilibrium, or why the specified run found none of one that is.
struct Diagnosi {
    Causa causa = Causa::oscilla;
    int fase = 0;        ///< the stage that is no equilibrium, or the one asked about
    double paratia = 0;  ///< length of the wall [m]
    std::optional<equilibrium::Meccanismo> moto{};  ///< of a mechanism
    equilibrium::PartiAlLimite parti{};             ///< of a mechanism
    /// Of a mechanism: the length from which on the wall stands, if a longer one does [m].
    std::optional<double> lunghezza{};
    equilibrium::DatoInstabile instabile{};                               ///< of `nonDefinito`
    equilibrium::EsitoNewton newton = equilibrium::EsitoNewton::trovato;  ///< of `nessunNumero`
    double spostamento = 0;  ///< of `oscilla`: largest displacement of the stage in size [m]
    Ostacolo ostacolo = Ostacolo::oscillazione;  ///< of `oscilla`
};

/// Of a stage just computed.
/// @param dati    the project whose stage it is
/// @param parete  what has computed it
/// @pre its soil has its values (`rifiuto`): asserted
[[nodiscard]] Diagnosi diagnosi(const project::DatiProgetto& dati, int nSeg,
                                const equilibrium::EquilibrioParete& parete,
                                const equilibrium::FaseEquilibrio& fase);
/// The same of a stage of which `problema` is set up, without the search for a length.
[[nodiscard]] Diagnosi diagnosiSenzaLunghezza(const project::DatiProgetto& dati,
                                              const equilibrium::ProblemaFase& problema,
                                              const equilibrium::FaseEquilibrio& fase);

/// Of a stage of the specified run that found no rest. Follows the wall through all its stages: a
/// wall that stands in this one and falls in a later one is none that stands.
/// @param dati  with the bending stiffness of the run
/// @pre the soil of the stages up to this one has its values, as the run found: asserted
[[nodiscard]] Diagnosi diagnosi(const project::DatiProgetto& dati, int nSeg, int fase);

}  // namespace korven::safety
