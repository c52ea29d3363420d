#pragma once

#include <functional>
#include <string>

#include "base/dialogo.hpp"
#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"
#include "dossier/annex_command.hpp"
#include "dossier/dossier.hpp"

namespace korven::batch {

/// What the command line puts in the place of the project's own.
[[nodiscard]] dossier::AlPostoDelProgetto alPostoDelProgetto(const Opzioni& opzioni);

/// The command that makes a document again, of the segments of the run and of the date that it has.
using ComandoDocumento = std::function<std::string(int nSeg, const std::string& data)>;

/// What a document tells beside the project.
struct Accanto {
    ComandoDocumento comando{};                    ///< empty: not how it is made
    std::optional<factors::NormaChiesta> norma{};  ///< nothing: no code
};

/// Computes all that is told of a project that was read and reviewed. An interrupt stops what can
/// be stopped of it: ask `Interruzioni` afterwards.
/// @param usati    what the run is made with
[[nodiscard]] dossier::Fascicolo fascicoloCalcolato(const Opzioni& opzioni,
                                                    const project::DatiProgetto& usati, int nSeg,
                                                    const Accanto& accanto, const Esito& esito);

/// Tells why the wall does not stand, if it does not, and notes what became of the run.
/// @param margine  nullptr: nothing is known of its stages
/// @return false where the soil of a stage refuses a calculation
bool raccontaVerdetto(const safety::Margine* margine, base::Dialogo& dialogo, Esito& esito);

/// For a command that writes down all that is told of a computed project: computes that between the
/// remarks, as `calcolaInMemoria` does, and hands it over to be written. A wall that does not stand
/// is written too; then the reason is told and the exit code is 1.
/// @param controlla  refuses outputs, before anything is computed
/// @return the exit code
[[nodiscard]] int conFascicolo(const Opzioni& opzioni, Esito& esito,
                               const std::function<void()>& controlla, const Accanto& accanto,
                               const std::function<void(dossier::Fascicolo)>& scrivi);

}  // namespace korven::batch
