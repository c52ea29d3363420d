#pragma once

#include <string>
#include <vector>

#include "project/project_data.hpp"

namespace korven::commands {

/// Something missing or odd about a project, in words.
struct Rilievo {
    bool impedisce = false;  ///< the project can't be computed as long as it stands
    std::string testo;       ///< translated, one line
};

/// Looks through a project without computing it: what a run would refuse, and what is likely to be
/// a slip even though the program computes with it. First what prevents a run, then the rest, each
/// in the order of the data.
[[nodiscard]] std::vector<Rilievo> esaminaProgetto(const project::DatiProgetto& dati);

/// The same, and behind it what is odd about the lines of the file that the project was read from:
/// numbers with something behind them, a method that reading does not keep, lines too many.
/// @param percorso  the file that `dati` was read from
/// @throws base::ErroreFile if it is no such file any more
[[nodiscard]] std::vector<Rilievo> esaminaFile(const std::string& percorso,
                                               const project::DatiProgetto& dati);

/// True if nothing found prevents a run.
[[nodiscard]] bool calcolabile(const std::vector<Rilievo>& rilievi);

}  // namespace korven::commands
