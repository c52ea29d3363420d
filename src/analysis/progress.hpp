#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "analysis/run_observer.hpp"

namespace korven::analysis {

/// Shows the progress of a run. The run has one thread: `iterazione` is also the one chance to
/// serve waiting events and to set `stopCalcolo`.
class Avanzamento : public OsservatoreCorsa {
 public:
    /// The stages are about to begin.
    virtual void apri() = 0;
    /// A solve has finished.
    void iterazione(const StatoIterazione& stato) override = 0;
    /// The run has left its stages, whatever the outcome.
    virtual void chiudi() = 0;

    /// Before the stages, while another run holds the result file: called again and again, each
    /// time with the words that tell it, and followed by `fermata`. Lets `pausaAttesa` pass and is
    /// the one chance to serve waiting events and to set `stopCalcolo`, which ends the waiting. By
    /// default it just sleeps.
    virtual void attendi(std::string_view detto);
    /// The waiting is over, whatever its outcome.
    virtual void fineAttesa() {}

    static constexpr std::chrono::milliseconds pausaAttesa{50};
};

/// The line that tells the state of a run: "fase=2   iter.=5   Ymax=0.0123   Mmax=45.6", with Ymax
/// in metres and Mmax in kN m.
[[nodiscard]] std::string didascaliaAvanzamento(int fase, int iterazione, double yMax, double mMax);

}  // namespace korven::analysis
