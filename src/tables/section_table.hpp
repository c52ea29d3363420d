#pragma once

#include <string>
#include <vector>

#include "live/wall.hpp"
#include "safety/margin.hpp"
#include "structure/interaction_domain.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// What the section's form tells of the section that stands in it.
struct QuadroSezione {
    /// Stiffness, the project's beside it, design axial force; what is missing of a section that is
    /// not defined. A sentence each, translated.
    std::vector<std::string> righe;
    /// Both directions of bending, and shear where there are stirrups: design value, resistance,
    /// use, verdict. A design value that is not known is "-". Numbers, digits and verdicts are
    /// those of the report; its notes say where they come from.
    Prospetto verifiche;
};

/// @param dati     the project as it stands in its forms: with the stored stiffness
/// @param parete   the wall that it makes
/// @param margine  of the same wall; nullptr while it is being computed
[[nodiscard]] QuadroSezione quadroSezione(const project::DatiProgetto& dati,
                                          const live::PareteViva& parete,
                                          const safety::Margine* margine);

/// The N-M domain as a table: a row for each stage, with its design force, moments and whether it
/// lies inside; then a note with the ends of the domain.
/// @param dominio  of the same section; empty while it is being computed
[[nodiscard]] Prospetto prospettoDominio(const live::PareteViva& parete,
                                         const safety::Margine* margine,
                                         const std::vector<structure::PuntoDominio>& dominio);

}  // namespace korven::tables
