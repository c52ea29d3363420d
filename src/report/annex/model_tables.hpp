#pragma once

#include "dossier/dossier.hpp"
#include "project/project_data.hpp"
#include "tables/result_table.hpp"

// What the chapter on the model says in tables of their own.

namespace korven::report {

/// The pressure of the soil as a function of the displacement, side by side: from the stress at a
/// node to the pressure between its limits, as the methods of this project have it.
[[nodiscard]] tables::Prospetto prospettoMolla(const project::DatiProgetto& dati);

/// What a checker must not take for done, to which side that errs or where it is to be done, and
/// where the rules for it stand.
[[nodiscard]] tables::Prospetto prospettoEsclusi(const dossier::Fascicolo& fascicolo);

}  // namespace korven::report
