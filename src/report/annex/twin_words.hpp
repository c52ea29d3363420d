#pragma once

#include <string>
#include <vector>

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// The numbers of the report beside those of the equilibrium, wherever they are others.

namespace korven::report {

/// The largest numbers of each stage both ways, with their difference; notes by number say why
/// they differ. Without rows where there is no report.
[[nodiscard]] tables::Prospetto prospettoDoppi(const dossier::Fascicolo& fascicolo);

/// What the report has otherwise of the largest moments and the shear of a stage, or with 0 of all
/// stages: a sentence, with the reasons; empty where it has the same numbers or there is none.
[[nodiscard]] std::string fraseDoppi(const dossier::Fascicolo& fascicolo, int fase);

/// The checks that the report has with other numbers, and why; without rows where it has the same
/// or there is none.
[[nodiscard]] tables::Prospetto prospettoVerificheDoppie(const dossier::Fascicolo& fascicolo);

}  // namespace korven::report
