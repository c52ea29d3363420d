#pragma once

#include <optional>
#include <string>
#include <vector>

#include "live/section_checks.hpp"
#include "live/wall.hpp"
#include "safety/check_verdict.hpp"
#include "safety/margin.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// What the column of verdicts tells, an Italian key.
inline constexpr const char* spiegazioneEsito =
    "Esito per l'equilibrio e per la relazione, con questa maglia e con maglie più fini";

/// The checks of the section: design value, resistance, use, where the value is, verdict. Numbers
/// and digits are those of the report, and a note says so; the verdict is the one on all that is
/// known of a check (`safety::giudizio`), and notes tell what finer meshes make of it.
///
/// Where the specified run gives no report but the wall stands, the same rules are applied to the
/// equilibrium solution, the shear being the largest of all stages; a note says why. Of a wall that
/// does not stand, or without a section, there are no rows.
/// @param margine  of the same wall
[[nodiscard]] Prospetto prospettoVerifiche(const live::PareteViva& parete,
                                           const safety::Margine& margine);
/// The same with the verdicts and the words of the report alone.
/// @param margine  with a report: asserted
[[nodiscard]] Prospetto prospettoVerificheRelazione(const live::PareteViva& parete,
                                                    const safety::Margine& margine);

/// The columns of a table of checks up to where the value is reached: check, design value,
/// resistance, use, stage, depth.
[[nodiscard]] std::vector<Colonna> colonneVerifiche();
/// The note that the checks are made with the numbers of the equilibrium solution.
[[nodiscard]] std::string notaVerificheInEquilibrio();

/// A number with the digits of the report, which cuts where the other tables round.
[[nodiscard]] Cella cifre(double mostrato);

/// The verdict on a check of the section, by whatever is known of it; "-" without one.
[[nodiscard]] Cella esito(std::optional<safety::Giudizio> giudizio);

/// The head of what the use of a check goes to with ever finer meshes.
[[nodiscard]] Colonna colonnaTendenza();
/// What it goes to, or why there is nothing.
[[nodiscard]] Cella tendenza(const safety::Margine& margine, results::Verifica cosa);

/// The share of a resistance that is used; nothing without a resistance.
[[nodiscard]] Cella uso(double progetto, double resistenza);

}  // namespace korven::tables
