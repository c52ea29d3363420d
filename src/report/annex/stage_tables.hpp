#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// What is told of a stage beside its nodes, and of both calculations of all stages.

namespace korven::report {

/// Excavation, water, surcharges and anchors of a stage: one row.
[[nodiscard]] tables::Prospetto prospettoCondizioni(const project::DatiProgetto& dati, int fase);

/// Forces and moments about the head: each part, where its resultant acts, the sum of all.
[[nodiscard]] tables::Prospetto prospettoBilancio(const dossier::BilancioFase& bilancio);

/// Steps of the equilibrium and iterations of the specified run of each stage, and how far the two
/// are from each other.
[[nodiscard]] tables::Prospetto prospettoCorse(const dossier::Fascicolo& fascicolo);

/// The same of one stage that stands, in a sentence.
[[nodiscard]] std::string frasePassi(const dossier::Fascicolo& fascicolo, int fase);

}  // namespace korven::report
