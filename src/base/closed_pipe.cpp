#include "base/closed_pipe.hpp"

#include <csignal>

namespace korven::base {

namespace {

extern "C" void nulla(int) {}

}  // namespace

void resistiAiTubiChiusi() {
    struct sigaction azione {
    }, prima{};
    ::sigaction(SIGPIPE, nullptr, &prima);
    if (prima.sa_handler != SIG_DFL) return;
    // A handler and not SIG_IGN, which a started program would inherit.
    azione.sa_handler = nulla;
    azione.sa_flags = static_cast<int>(SA_RESTART);
    ::sigemptyset(&azione.sa_mask);
    ::sigaction(SIGPIPE, &azione, nullptr);
}

}  // namespace korven::base
