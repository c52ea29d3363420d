#include "batch/run/interruption.hpp"

namespace korven::batch {

namespace {

volatile std::sig_atomic_t richiesta = 0;

extern "C" void chiediFine(int) { richiesta = 1; }

}  // namespace

Interruzioni::Interruzioni() {
    struct sigaction azione {};
    azione.sa_handler = chiediFine;
    // No SA_RESTART: a call that waits comes back, so that the second signal finds its way out.
    azione.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigemptyset(&azione.sa_mask);
    for (std::size_t i = 0; i < segnali.size(); ++i) {
        ::sigaction(segnali[i], nullptr, &prima_[i]);
        if (prima_[i].sa_handler != SIG_IGN) ::sigaction(segnali[i], &azione, nullptr);
    }
}

Interruzioni::~Interruzioni() {
    for (std::size_t i = 0; i < segnali.size(); ++i) ::sigaction(segnali[i], &prima_[i], nullptr);
}

const volatile std::sig_atomic_t& Interruzioni::chiesta() { return richiesta; }

}  // namespace korven::batch
