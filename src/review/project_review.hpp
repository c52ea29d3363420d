#pragma once

#include <optional>
#include <string>

#include "analysis/watch/run_end.hpp"
#include "project/project_data.hpp"
#include "review/remark.hpp"

namespace korven::review {

/// Looks through a project without computing it: what a run would refuse, and what is likely to be
/// a slip even though the program computes with it. By weight, else in the order of the data.
[[nodiscard]] Osservazioni esaminaProgetto(const project::DatiProgetto& dati);

/// What is odd about the lines of the file that a project was read from: numbers with something
/// after them, a method that reading does not keep, lines too many. By weight.
/// @param percorso  the file that `dati` was read from
/// @throws base::ErroreFile if it is no such file any more
[[nodiscard]] Osservazioni esaminaRighe(const std::string& percorso,
                                        const project::DatiProgetto& dati);

/// Both in one list, the project first. By weight.
[[nodiscard]] Osservazioni esaminaFile(const std::string& percorso,
                                       const project::DatiProgetto& dati);

/// Computes the stages in memory, which takes as long as a run, and writes nothing.
/// @param maxIterazioni  of a stage; 0 for no limit
/// @param fine  how it ended, if anybody asks: a bound of the numbers counts too
/// @return why a run would come to no result; nothing if it would
/// @pre no input check fails, which is asserted, and the reviews above find nothing that prevents a
///      run of `dati`
[[nodiscard]] std::optional<Osservazione> provaCalcolo(const project::DatiProgetto& dati,
                                                       int maxIterazioni,
                                                       analysis::FineCorsa* fine = nullptr);

/// True if each value of the project is a number in the unit in which reports and editors show it,
/// up to ten times the stored one.
[[nodiscard]] bool mostrabile(const project::DatiProgetto& dati);

}  // namespace korven::review
