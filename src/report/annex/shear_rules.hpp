#pragma once

#include <string>

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// How the shear check stands to the code that it is of, and what is said where there is none.

namespace korven::report {

/// Where the check leaves ENV 1992-1-1: what the code has, what the check takes, and to which side
/// that errs.
[[nodiscard]] tables::Prospetto prospettoScostamentiTaglio(const project::DatiProgetto& dati,
                                                           const dossier::ValoriTaglio& valori);

/// Why there is no shear check, in a sentence. @pre there is none: asserted
[[nodiscard]] std::string percheSenzaTaglio(const dossier::Fascicolo& fascicolo);

/// The design shear that is then to be checked elsewhere, or that the wall does not stand; empty
/// where there is none.
[[nodiscard]] std::string taglioDaVerificare(const dossier::Fascicolo& fascicolo);

}  // namespace korven::report
