#include "batch/run/interruption.hpp"

#include <ctime>

namespace korven::batch {

namespace {

volatile std::sig_atomic_t richiesta = 0;
volatile std::sig_atomic_t quando = 0;  // it came [ms], of some clock

// One request may come as two signals: `timeout` sends one to its child and one to its group.
constexpr int insieme = 200;  // [ms]

// Of what a handler may call.
int adesso() {
    constexpr long nanosecondi = 1'000'000, millisecondi = 1000, giro = 1'000'000;  // seconds
    timespec ora{};
    ::clock_gettime(CLOCK_MONOTONIC, &ora);
    return static_cast<int>(ora.tv_sec % giro * millisecondi + ora.tv_nsec / nanosecondi);
}

extern "C" void chiediFine(int segnale) {
    const int ora = adesso();
    if (richiesta == 0) {
        quando = ora;
        richiesta = 1;
    } else if (ora - quando > insieme || ora < quando) {
        static_cast<void>(::signal(segnale, SIG_DFL));
        static_cast<void>(::raise(segnale));  // once this handler has come back
    }
}

}  // namespace

Interruzioni::Interruzioni() {
    struct sigaction azione {};
    azione.sa_handler = chiediFine;
    // No SA_RESTART: a call that waits comes back, so that the second signal finds its way out.
    azione.sa_flags = 0;
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
