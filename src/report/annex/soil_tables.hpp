#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// What the calculation makes of each layer and of the section, with the values put in.

namespace korven::report {

/// Coefficients of pressure and terms of cohesion, a row for each layer, and for each side where
/// they differ.
[[nodiscard]] tables::Prospetto prospettoCoefficienti(const dossier::Fascicolo& fascicolo);

/// The same coefficients by their formulas; layers that the wall does not reach are left out.
[[nodiscard]] tables::Prospetto prospettoFormuleCoefficienti(const dossier::Fascicolo& fascicolo);

/// The moduli of the springs by the method of the project: of each layer, and of each side where
/// they differ.
[[nodiscard]] tables::Prospetto prospettoModuli(const dossier::Fascicolo& fascicolo);

/// Bending stiffness step by step; without rows where no section is defined.
[[nodiscard]] tables::Prospetto prospettoRigidezza(const dossier::Fascicolo& fascicolo);

}  // namespace korven::report
