#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// The equilibrium and the specified run beside each other, stage by stage.

namespace korven::report {

/// Steps of the equilibrium and iterations of the specified run of each stage, and how far the two
/// are from each other.
[[nodiscard]] tables::Prospetto prospettoCorse(const dossier::Fascicolo& fascicolo);

/// The same of one stage that stands, in a sentence.
[[nodiscard]] std::string frasePassi(const dossier::Fascicolo& fascicolo, int fase);

}  // namespace korven::report
