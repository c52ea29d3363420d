#pragma once

#include "analysis/result_file.hpp"
#include "analysis/staged_run.hpp"
#include "structure/limit_search.hpp"

namespace korven::analysis {

/// The closing numbers of a run that came to rest: the extremes of its stages beside the
/// resistances of the section, as the report compares them.
/// @param MRd  of the section; 0 both ways where it is not valid
[[nodiscard]] ChiusuraRisultati chiusura(const structure::MomentiResistenti& MRd,
                                         const EsitoCorsa& corsa);

}  // namespace korven::analysis
