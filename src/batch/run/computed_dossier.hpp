#pragma once

#include <functional>
#include <string>
#include <vector>

#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"
#include "dossier/dossier.hpp"

namespace korven::batch {

/// The options of the command line that override something of the project, as they are typed in the
/// language in use: "--pressures rankine".
[[nodiscard]] std::vector<std::string> opzioniSulProgetto(const Opzioni& opzioni);

/// For a command that writes down all that is told of a computed project: computes that between the
/// remarks, as `calcolaInMemoria` does, and hands it over to be written. A wall that does not stand
/// is written too; then the reason is told and the exit code is 1.
/// @param data       of the document, as it was asked for; empty: it was not
/// @param controlla  refuses outputs, before anything is computed
/// @return the exit code
[[nodiscard]] int conFascicolo(const Opzioni& opzioni, const std::string& data, Esito& esito,
                               const std::function<void()>& controlla,
                               const std::function<void(const dossier::Fascicolo&)>& scrivi);

}  // namespace korven::batch
