#pragma once

#include "analysis/result_guard.hpp"
#include "base/disk.hpp"

namespace korven::batch {

/// The outside of a command.
struct PorteComando {
    /// Keeps the result file from the comparison on, until what is told of it is told.
    analysis::GuardiaRisultati& guardia;
    /// Takes results, report and drawings. The word-processor file comes from a program of its own.
    const base::Disco& disco;
};

}  // namespace korven::batch
