#pragma once

#include <string>

#include "project/project_data.hpp"

namespace korven::safety {

/// A project made ready to be computed in memory.
struct ParetePronta {
    /// As it is, but that `rigidezzaEJ` is what the section gives where none is stored.
    project::DatiProgetto dati;
    bool ejDellaSezione = false;  ///< it is: the project has none
    /// Why a run would be refused, one sentence, translated; empty if nothing refuses it but,
    /// perhaps, the number of segments.
    std::string rifiuto{};
};

/// Looks at all that a run looks at before its first stage, the names of files and the number of
/// segments apart, and takes a stiffness that is left open from the section. Neither the open
/// project nor a file is touched, and nobody is asked.
[[nodiscard]] ParetePronta preparaParete(const project::DatiProgetto& dati);

}  // namespace korven::safety
