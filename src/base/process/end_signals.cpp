#include "base/process/end_signals.hpp"

#include <fcntl.h>
#include <unistd.h>

namespace korven::base {

namespace {

// Where the handler, which may do next to nothing, leaves the number of the signal.
volatile std::sig_atomic_t ingresso = -1;

extern "C" void annotaFine(int segnale) {
    const auto byte = static_cast<unsigned char>(segnale);
    [[maybe_unused]] const auto scritti = ::write(ingresso, &byte, 1);
}

}  // namespace

SegnaliFine::SegnaliFine() {
    if (::pipe2(tubo_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    ingresso = tubo_[1];
    struct sigaction azione {};
    azione.sa_handler = annotaFine;
    azione.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    ::sigemptyset(&azione.sa_mask);
    for (std::size_t i = 0; i < segnali.size(); ++i) {
        ::sigaction(segnali[i], nullptr, &prima_[i]);
        if (prima_[i].sa_handler != SIG_IGN) ::sigaction(segnali[i], &azione, nullptr);
    }
}

SegnaliFine::~SegnaliFine() {
    if (descrittore() < 0) return;
    for (std::size_t i = 0; i < segnali.size(); ++i) ::sigaction(segnali[i], &prima_[i], nullptr);
    ingresso = -1;
    for (const int estremo : tubo_) ::close(estremo);
}

int SegnaliFine::prossimo() const {
    unsigned char segnale = 0;
    return ::read(tubo_[0], &segnale, 1) == 1 ? segnale : 0;
}

}  // namespace korven::base
