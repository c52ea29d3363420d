#pragma once

#include <vector>

#include "analysis/run_observer.hpp"
#include "analysis/stage_sequence.hpp"

namespace korven::analysis {

/// What a run of the stages gives back.
struct EsitoCorsa {
    /// In order, up to the last or to the first that did not come to rest.
    std::vector<FaseCalcolata> fasi;
    /// Largest and smallest signed moment of the stages at rest [t m]; beyond all moments when
    /// there is none.
    double mMaxTotale = -oltreOgniValore, mMinTotale = oltreOgniValore;

    /// True when all stages came to rest.
    [[nodiscard]] bool finita() const {
        return fasi.empty() || fasi.back().esito == EsitoFase::convergente;
    }
};

/// The analysis itself: computes the stages 1 to `nFasi` one after the other until one fails or the
/// observer stops it. It reads its arguments and nothing else, and writes nothing but what it gives
/// back and `arrays`: no project or flag of the program, no file, no text. Runs in several threads
/// at once have the digits of one after the other, as long as each has arrays and an observer of
/// its own.
///
/// @param dati    a copy, whose `faldaValle` the stages overwrite; its `rigidezzaEJ` is
///                taken as given
/// @param nSeg    segments of the wall, as for `preparaCorsa`
/// @param arrays  to be used again from run to run; what an earlier one left there does not matter,
///                whatever its outcome
/// @throws base::ErroreIndice if a stage asks for more anchors than their table holds, or there are
/// more stages than the table holds
[[nodiscard]] EsitoCorsa calcolaFasi(project::DatiProgetto dati, int nSeg,
                                     OsservatoreCorsa& osservatore, ArraysCorsa& arrays);

/// The same with arrays for this one run.
[[nodiscard]] EsitoCorsa calcolaFasi(const project::DatiProgetto& dati, int nSeg,
                                     OsservatoreCorsa& osservatore);

}  // namespace korven::analysis
