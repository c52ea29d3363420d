#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// What is told of a stage beside its nodes.

namespace korven::report {

/// Excavation, water, surcharges and anchors of a stage: one row.
[[nodiscard]] tables::Prospetto prospettoCondizioni(const project::DatiProgetto& dati, int fase);

/// Forces and moments about the head: each part, where its resultant acts, the sum of all.
/// @param dati  of the wall: they say what is an anchor and what a strut
[[nodiscard]] tables::Prospetto prospettoBilancio(const project::DatiProgetto& dati,
                                                  const dossier::BilancioFase& bilancio);

/// How a reader gets from the tables of nodes to the balances, what shear is at an anchor and what
/// a fixed toe bears beyond the pressures: a paragraph.
/// @param righe  rows of a table of nodes, at most
[[nodiscard]] std::string fraseSomme(const dossier::Fascicolo& fascicolo, int righe);

/// What the balances are, and how the head moment of the project enters them: a paragraph.
[[nodiscard]] std::string fraseBilanci(const dossier::Fascicolo& fascicolo);

}  // namespace korven::report
