#include "shell/termination.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>

#include "analysis/run_flags.hpp"
#include "commands/fatal_error.hpp"

namespace korven::shell {

namespace {

// Where the handler, which may do next to nothing, leaves the number of the signal.
volatile std::sig_atomic_t ingresso = -1;

extern "C" void annota(int segnale) {
    const auto byte = static_cast<unsigned char>(segnale);
    [[maybe_unused]] const auto scritti = ::write(ingresso, &byte, 1);
}

}  // namespace

Terminazione::Terminazione() {
    if (::pipe2(tubo_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;  // signals end it as ever
    ingresso = tubo_[1];
    avviso_ = new QSocketNotifier(tubo_[0], QSocketNotifier::Read, this);
    connect(avviso_, &QSocketNotifier::activated, this, &Terminazione::ricevuto);
    struct sigaction azione {};
    azione.sa_handler = annota;
    azione.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    ::sigemptyset(&azione.sa_mask);
    for (std::size_t i = 0; i < segnali.size(); ++i) {
        ::sigaction(segnali[i], nullptr, &prima_[i]);
        if (prima_[i].sa_handler != SIG_IGN) ::sigaction(segnali[i], &azione, nullptr);
    }
}

Terminazione::~Terminazione() {
    if (avviso_ == nullptr) return;
    for (std::size_t i = 0; i < segnali.size(); ++i) ::sigaction(segnali[i], &prima_[i], nullptr);
    ingresso = -1;
    for (const int estremo : tubo_) ::close(estremo);
}

void Terminazione::ricevuto() {
    unsigned char segnale = 0;
    if (::read(tubo_[0], &segnale, 1) != 1) return;
    commands::recuperaProgetto();
    analysis::stopCalcolo = true;
    QCoreApplication::exit(128 + segnale);
}

}  // namespace korven::shell
