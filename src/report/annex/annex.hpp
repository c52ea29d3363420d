#pragma once

#include "document/blocks.hpp"
#include "dossier/dossier.hpp"

namespace korven::report {

/// How much of a computed project its annex tells.
struct OpzioniAllegato {
    /// Rows of a stage's table of nodes, at most; from 2 on: asserted. The first node, the last and
    /// those of the peaks are always there.
    int righe = 51;
};

/// The annex: what a designer signs and a checker follows, from the cover to the way to make it
/// again, in the language in force. All its stage numbers are those of the equilibrium solution;
/// what is the specified run's is called so. A wall that does not stand, or that has no section, no
/// anchors or no results, gives a document that says why.
///
/// The document keeps what it was made of, so that its drawings can be painted at any later time.
[[nodiscard]] document::Documento allegato(dossier::Fascicolo fascicolo,
                                           const OpzioniAllegato& opzioni = {});

}  // namespace korven::report
