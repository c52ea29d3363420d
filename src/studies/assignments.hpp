#pragma once

#include <span>
#include <string>
#include <vector>

#include "project/project_data.hpp"

namespace korven::studies {

/// A project with some fields assigned, or all that is wrong with the assignments.
struct Assegnato {
    project::DatiProgetto dati;  ///< as its file gives it back; of use without `difetti` alone
    std::vector<std::string> difetti;  ///< translated, a line each
};

/// Assigns fields of a project, all of them or none: "phiStrato[2]=31.5", in the units that people
/// see, with the limits of the editors. They are judged together: counts before the rows that they
/// add, depths and the types of section when all is assigned. Nothing is sorted.
///
/// Besides what `project::valoreScritto` refuses these are faults: a text without "=", a field
/// assigned twice, depths that have come out of order (`project::nuoviDisordini`), another number
/// of types of section than one where one of them is assigned, and a method of the soil pressures
/// that no file keeps.
/// @param prima  as read from its file
[[nodiscard]] Assegnato assegna(const project::DatiProgetto& prima,
                                std::span<const std::string> scritte);

}  // namespace korven::studies
