#pragma once

#include <string>

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// Why a stage has no equilibrium, so that a reader with a pencil finds what is missing.

namespace korven::report {

/// How the wall moves and how the tables below are to be read.
[[nodiscard]] std::string fraseMeccanismo(const dossier::BilancioLimite& limite);

/// What pushes and what resists, about the point that stays; the sum is what is missing.
[[nodiscard]] tables::Prospetto prospettoLimite(const project::DatiProgetto& dati,
                                                const dossier::BilancioLimite& limite);

/// The limit pressures of both sides at the nodes.
[[nodiscard]] tables::Prospetto prospettoPressioniLimite(const dossier::BilancioLimite& limite);

}  // namespace korven::report
