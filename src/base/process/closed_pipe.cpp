#include "base/process/closed_pipe.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace korven::base {

namespace {

extern "C" void nulla(int) {}

}  // namespace

void occupaCanaliChiusi() {
    // Each the wrong way round. A file is opened on the lowest number that is free.
    constexpr int modi[] = {O_WRONLY, O_RDONLY, O_RDONLY};
    for (int canale = STDIN_FILENO; canale <= STDERR_FILENO; ++canale)
        if (::fcntl(canale, F_GETFD) < 0 && ::open("/dev/null", modi[canale]) != canale) return;
}

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
