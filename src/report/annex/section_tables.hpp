#pragma once

#include "dossier/dossier.hpp"
#include "tables/result_table.hpp"

// The checks of the section with all that is put into them: N and mm in the section, kN and kN m
// per metre of wall in what is compared.

namespace korven::report {

/// The checks in a row each: design value, resistance, use, where, verdict. Actions of the
/// equilibrium.
[[nodiscard]] tables::Prospetto prospettoControlli(const dossier::Fascicolo& fascicolo);

/// What a check of bending must not keep to itself: that its use grows where the axial force that
/// helps it is not multiplied. Empty if it does not.
/// @param momento  the key of a text: "momento positivo"
[[nodiscard]] std::string sforzoFavorevole(const dossier::LatoFlessione& lato, const char* momento);

/// Strengths, areas, design axial force and what the section carries of it.
[[nodiscard]] tables::Prospetto prospettoMateriali(const project::Sezione& sezione,
                                                   const dossier::ValoriFlessione& valori);

/// One direction of bending: design moment, resistance, use.
/// @param M  the largest of the stages this way, in size [t m]
[[nodiscard]] tables::Prospetto prospettoFlessione(const dossier::ValoriFlessione& valori,
                                                   bool positivo, double M);

/// A direction of bending under the design axial force, under that of the project and without any;
/// no rows where no other than the design force is told.
[[nodiscard]] tables::Prospetto prospettoAltriSforzi(const dossier::ValoriFlessione& valori,
                                                     bool positivo);

/// The forces in the section at its resistance in that direction, their arms and moments.
[[nodiscard]] tables::Prospetto prospettoForzeInterne(const dossier::ValoriFlessione& valori,
                                                      bool positivo);

/// The shear check, from one pile to a metre of wall.
[[nodiscard]] tables::Prospetto prospettoTaglio(const project::Sezione& sezione,
                                                const dossier::ValoriTaglio& valori);

}  // namespace korven::report
