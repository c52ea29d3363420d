#pragma once

#include <optional>
#include <string>

#include "project/project_data.hpp"

namespace korven::results {

/// What a result file begins with, and the mesh, which only its number of lines tells.
struct TestaRisultati {
    project::DatiProgetto dati;  ///< with its headings; a method above 1 has become 1
    double metodoUsato = 0;      ///< code of the earth pressure method that the run used
    int nSeg = 0;                ///< segments, from 3
};

/// Reads the head of a result file, whatever mesh has written it.
/// @return nothing for a project: a file that ends with its head
/// @throws base::ErroreFile if the file is missing, its head is broken, or its lines are not those
///         of whole stages. It advises to delete the file and to compute again only if it is one of
///         results, by its name or by a stage in it: nobody should delete a broken project
[[nodiscard]] std::optional<TestaRisultati> leggiTestaRisultati(const std::string& percorso);

}  // namespace korven::results
