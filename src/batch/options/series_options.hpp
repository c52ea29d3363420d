#pragma once

#include <vector>

#include "batch/options/option_row.hpp"

namespace korven::batch {

// Those that messages name.
inline constexpr base::Gemelli opzionePiano{"--piano", "--plan"};
inline constexpr base::Gemelli opzioneGriglia{"--griglia", "--grid"};
inline constexpr base::Gemelli opzioneCampioni{"--campioni", "--samples"};
inline constexpr base::Gemelli opzioneLegge{"--legge", "--law"};
inline constexpr base::Gemelli opzioneRho = base::uguali("--rho");
inline constexpr base::Gemelli opzioneIpercubo{"--ipercubo", "--hypercube"};
inline constexpr base::Gemelli opzioneColonne{"--colonne", "--columns"};
inline constexpr base::Gemelli opzioneFallisce{"--fallisce", "--fails"};
inline constexpr base::Gemelli opzioneGrafico{"--grafico", "--chart"};
inline constexpr base::Gemelli opzioneSenzaLimite{"--senza-limite", "--no-limit"};
inline constexpr base::Gemelli opzioneParte{"--parte", "--part"};
inline constexpr base::Gemelli opzioneUscitaSerie{"--uscita", "--output"};

/// Where the variants of a study come from, what is computed of each and where the rows go.
[[nodiscard]] std::vector<RigaOpzione> opzioniSerie();

}  // namespace korven::batch
