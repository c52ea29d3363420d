#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/blocks.hpp"
#include "dossier/dossier.hpp"
#include "report/annex/annex.hpp"

// The chapters of the annex. Each adds what stands below its heading, which `allegato` sets; its
// own headings begin at level 2.

namespace korven::report {

/// What a chapter is made of.
struct Contesto {
    /// A drawing keeps a copy of this pointer: it is painted when the chapter is long done.
    std::shared_ptr<const dossier::Fascicolo> fascicolo;
    OpzioniAllegato opzioni;
};

using Blocchi = std::vector<document::Blocco>;

void capitoloCopertina(const Contesto& contesto, Blocchi& blocchi);
void capitoloModello(const Contesto& contesto, Blocchi& blocchi);
void capitoloOsservazioni(const Contesto& contesto, Blocchi& blocchi);
void capitoloDati(const Contesto& contesto, Blocchi& blocchi);
/// Coefficients, moduli, stiffness.
void capitoloTerreno(const Contesto& contesto, Blocchi& blocchi);
void capitoloFasi(const Contesto& contesto, Blocchi& blocchi);
void capitoloTiranti(const Contesto& contesto, Blocchi& blocchi);
void capitoloInviluppi(const Contesto& contesto, Blocchi& blocchi);
void capitoloSezione(const Contesto& contesto, Blocchi& blocchi);
void capitoloMargine(const Contesto& contesto, Blocchi& blocchi);
/// The wall under the combinations of a code, and what the chapter is called.
/// @pre the dossier has them: asserted
void capitoloNorma(const Contesto& contesto, Blocchi& blocchi);
[[nodiscard]] std::string titoloNorma(const dossier::Fascicolo& fascicolo);
/// The springs of every stage, node by node.
void capitoloNodiTerreno(const Contesto& contesto, Blocchi& blocchi);
void capitoloRipetere(const Contesto& contesto, Blocchi& blocchi);

}  // namespace korven::report
