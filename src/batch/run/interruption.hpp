#pragma once

#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigaction is no part of csignal

#include <array>
#include <csignal>

#include "analysis/run_observer.hpp"

namespace korven::batch {

/// Takes the signals that ask for the end of the program (Ctrl+C, termination, closed terminal) for
/// as long as it lives: the length of a run with its report, since before and after it there is
/// nothing to tidy up.
///
/// The first signal only asks: the run stops at its next iteration and removes its result file; a
/// report or text being written is finished, so that no half file stays, and the program then ends
/// as stopped. Another one, a fifth of a second later or more, ends the program at once, as it
/// would without this class: a way out when the disk or the terminal hangs. A signal that was
/// ignored when the program began (nohup) stays ignored.
class Interruzioni {
 public:
    Interruzioni();
    Interruzioni(const Interruzioni&) = delete;
    Interruzioni& operator=(const Interruzioni&) = delete;
    ~Interruzioni();

    /// Not 0 once a signal has come.
    [[nodiscard]] static const volatile std::sig_atomic_t& chiesta();

 private:
    static constexpr std::array segnali{SIGINT, SIGTERM, SIGHUP};
    std::array<struct sigaction, segnali.size()> prima_{};
};

/// Looks on at a run in memory and stops it when the user wants the end of the program.
class FinoAllInterruzione : public analysis::OsservatoreCorsa {
 public:
    [[nodiscard]] bool fermata() override { return Interruzioni::chiesta() != 0; }
};

}  // namespace korven::batch
