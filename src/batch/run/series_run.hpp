#pragma once

#include "batch/options/choices.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/outcome.hpp"
#include "batch/run/series_plan.hpp"

namespace korven::batch {

/// Computes the variants of a study of `Progetto` and writes their rows, with the progress and what
/// they come to on standard error.
/// @param scelte  with variants: asserted
/// @param nSeg    segments of the wall
/// @return the exit code
/// @throws base::ErroreFile for a file that can't be written, or that is of another study
/// @throws NomiInConflitto
[[nodiscard]] int eseguiSerie(const Opzioni& opzioni, const PorteComando& porte,
                              const VariantiScelte& scelte, int nSeg, Esito& esito);

/// Why a column, or the result to be drawn, is none of the study's, translated: of the first; empty
/// if all are.
[[nodiscard]] std::string colonnaSbagliata(const Opzioni& opzioni,
                                           const studies::Varianti& varianti);

/// Why what makes a variant fail can't be read, translated; empty if it can.
[[nodiscard]] std::string condizioneSbagliata(const Opzioni& opzioni,
                                              const studies::Varianti& varianti);

}  // namespace korven::batch
