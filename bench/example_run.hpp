#pragma once

#include <memory>
#include <string>

#include "analysis/run_arrays.hpp"
#include "project/project_data.hpp"

namespace korven::bench {

/// An example project of data/examples, by name.
[[nodiscard]] project::DatiProgetto esempio(const std::string& nome);

/// The wall with two rows of anchors (`diaframma_due_ordini`), dug down in so many equal steps; an
/// anchor comes into place once the excavation is 0.5 m below it.
[[nodiscard]] project::DatiProgetto scavatoIn(int fasi);

/// The arrays of a run of all stages at the end of the last one, classified once more: what the
/// next iteration would start from.
/// @throws std::runtime_error if a stage does not come to rest
[[nodiscard]] std::unique_ptr<analysis::ArraysCorsa> corsaConvergente(project::DatiProgetto dati,
                                                                      int nSeg);

}  // namespace korven::bench
