#include "batch/run/console.hpp"

#include <poll.h>
#include <unistd.h>

#include <iostream>

#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"

namespace korven::batch {

namespace {

constexpr const char* cancellaRiga = "\r\x1b[K";

// Short numbers: the line must fit a terminal. The displacement stays in m.
std::string rigaAvanzamento(const analysis::StatoIterazione& stato) {
    return base::traduttore("fase") + "=" + std::to_string(stato.fase) +
           "   iter.=" + std::to_string(stato.iterazione) +
           "   Ymax=" + project::numeroMostrato(stato.yMax, 4) +
           "   Mmax=" + project::numeroMostrato(stato.mMax, 2, project::unita::momento);
}

// A terminal that hangs must not hold a program that was told to end.
bool terminaleLibero() {
    constexpr int attesaMassima = 500;  // [ms]
    pollfd uscita{STDERR_FILENO, POLLOUT, 0};
    return ::poll(&uscita, 1, attesaMassima) == 1 && (uscita.revents & POLLOUT) != 0;
}

}  // namespace

void DialogoConsole::messaggio(std::string_view testo, std::string_view titolo, base::Icona) {
    vista_.chiudi();
    messaggi_.emplace_back(testo);
    std::cerr << titolo << ' ' << testo << '\n';
}

base::Risposta DialogoConsole::domanda(std::string_view, std::string_view, base::Pulsanti,
                                       base::Icona) {
    return ricalcolaEJ_ ? base::Risposta::si : base::Risposta::no;
}

base::Risposta DialogoConsole::domandaInformata(std::string_view testo, std::string_view titolo,
                                                base::Pulsanti pulsanti, base::Icona icona,
                                                std::string_view informazione) {
    vista_.chiudi();
    std::cerr << informazione << '\n';
    return domanda(testo, titolo, pulsanti, icona);
}

AvanzamentoConsole::AvanzamentoConsole(bool mostra)
    : mostra_(mostra), terminale_(::isatty(STDERR_FILENO) == 1) {}

void AvanzamentoConsole::iterazione(const analysis::StatoIterazione& stato) {
    if (!mostra_ || (!terminale_ && !stato.convergente)) return;
    if (rigaAperta_) std::cerr << cancellaRiga;
    std::cerr << rigaAvanzamento(stato);
    rigaAperta_ = !stato.convergente;
    std::cerr << (rigaAperta_ ? "" : "\n") << std::flush;
}

void AvanzamentoConsole::chiudi() {
    // An interrupt cuts short a write that waits for the terminal, and a stream that failed once
    // would keep what follows to itself: why the run ended.
    if (!std::cerr && terminaleLibero()) std::cerr.clear();
    if (rigaAperta_) std::cerr << '\n';
    rigaAperta_ = false;
}

void AvanzamentoConsole::attendi(std::string_view detto) {
    // No progress, but why nothing goes on: told however silent the run is.
    if (!attesaDetta_) std::cerr << detto << '\n' << std::flush;
    attesaDetta_ = true;
    Avanzamento::attendi(detto);
}

}  // namespace korven::batch
