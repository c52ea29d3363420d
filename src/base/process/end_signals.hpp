#pragma once

#include <array>
#include <csignal>

namespace korven::base {

/// Receives the system's signals to end (SIGTERM at shutdown, SIGHUP when the connection or
/// terminal goes, SIGINT) as numbers in a pipe, where an event loop can wait for them. A second
/// signal of the same kind ends the program at once. One object at a time; the handlers found
/// before are put back when it goes. A signal that is ignored stays ignored.
class SegnaliFine {
 public:
    SegnaliFine();
    ~SegnaliFine();
    SegnaliFine(const SegnaliFine&) = delete;
    SegnaliFine& operator=(const SegnaliFine&) = delete;

    /// The end of the pipe to read from; -1 when the system gave none, and signals end the program
    /// as ever.
    [[nodiscard]] int descrittore() const { return tubo_[0]; }

    /// Takes the next signal out of the pipe. @return its number, 0 when there is none
    [[nodiscard]] int prossimo() const;

 private:
    static constexpr std::array segnali = {SIGTERM, SIGHUP, SIGINT};
    std::array<struct sigaction, segnali.size()> prima_{};
    std::array<int, 2> tubo_{-1, -1};
};

}  // namespace korven::base
