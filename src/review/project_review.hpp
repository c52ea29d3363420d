#pragma once

#include <optional>
#include <string>
#include <vector>

#include "project/project_data.hpp"

namespace korven::review {

/// Something missing or odd about a project, in words.
struct Rilievo {
    bool impedisce = false;  ///< the project can't be computed until it is mended
    std::string testo;       ///< translated, one line
};

/// Looks through a project without computing it: what a run would refuse, and what is likely to be
/// a slip even though the program computes with it. First what prevents a run, then the rest, each
/// in the order of the data.
[[nodiscard]] std::vector<Rilievo> esaminaProgetto(const project::DatiProgetto& dati);

/// The same, and after it what is odd about the lines of the file that the project was read from:
/// numbers with something after them, a method that reading does not keep, lines too many.
/// @param percorso  the file that `dati` was read from
/// @throws base::ErroreFile if it is no such file any more
[[nodiscard]] std::vector<Rilievo> esaminaFile(const std::string& percorso,
                                               const project::DatiProgetto& dati);

/// Computes the stages in memory, which takes as long as a run, and writes nothing.
/// @param maxIterazioni  of a stage; 0 for no limit
/// @return why a run would come to no result; nothing if it would
/// @pre no input check fails, which is asserted, and the reviews above find nothing that prevents a
///      run of `dati`
[[nodiscard]] std::optional<Rilievo> provaCalcolo(const project::DatiProgetto& dati,
                                                  int maxIterazioni);

/// True if each value of the project is a number in the unit in which reports and editors show it,
/// up to ten times the stored one.
[[nodiscard]] bool mostrabile(const project::DatiProgetto& dati);

/// True if nothing found prevents a run.
[[nodiscard]] bool calcolabile(const std::vector<Rilievo>& rilievi);

}  // namespace korven::review
