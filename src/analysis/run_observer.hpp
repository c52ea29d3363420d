#pragma once

#include "analysis/iteration_state.hpp"

namespace korven::analysis {

struct FaseCalcolata;

/// Follows a run through its stages and may stop it. By default it looks on in silence.
///
/// For each stage the run calls `inizio`, after each solve `iterazione` and then `fermata`, and
/// `fine` when the stage has come to rest or `caduta` when it has not, all in the thread of the
/// run. What a call throws ends the run and passes through it.
class OsservatoreCorsa {
 public:
    virtual ~OsservatoreCorsa() = default;
    /// Stage `fase` is about to be set up.
    virtual void inizio(int /*fase*/) {}
    /// A solve has finished.
    virtual void iterazione(const StatoIterazione& /*stato*/) {}
    /// Asked after each iteration, the last of a stage too: true ends the run there.
    [[nodiscard]] virtual bool fermata() { return false; }
    /// A stage has come to rest.
    virtual void fine(const FaseCalcolata& /*fase*/) {}
    /// A stage has not come to rest and ends the run: it is singular, refused or stopped.
    virtual void caduta(const FaseCalcolata& /*fase*/) {}
};

}  // namespace korven::analysis
