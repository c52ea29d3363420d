#include "batch/console.hpp"

#include <unistd.h>

#include <iostream>

namespace korven::batch {

namespace {

constexpr const char* cancellaRiga = "\r\x1b[K";

}  // namespace

void DialogoConsole::messaggio(std::string_view testo, std::string_view titolo, base::Icona) {
    messaggi_.emplace_back(testo);
    std::cerr << titolo << ' ' << testo << '\n';
}

base::Risposta DialogoConsole::domanda(std::string_view, std::string_view, base::Pulsanti,
                                       base::Icona) {
    return ricalcolaEJ_ ? base::Risposta::si : base::Risposta::no;
}

AvanzamentoConsole::AvanzamentoConsole(bool mostra)
    : mostra_(mostra), terminale_(::isatty(STDERR_FILENO) == 1) {}

void AvanzamentoConsole::iterazione(const analysis::StatoIterazione& stato) {
    if (!mostra_ || (!terminale_ && !stato.convergente)) return;
    if (rigaAperta_) std::cerr << cancellaRiga;
    std::cerr << analysis::didascaliaAvanzamento(stato.fase, stato.iterazione, stato.yMax,
                                                 stato.mMax);
    rigaAperta_ = !stato.convergente;
    std::cerr << (rigaAperta_ ? "" : "\n") << std::flush;
}

void AvanzamentoConsole::chiudi() {
    if (rigaAperta_) std::cerr << '\n';
    rigaAperta_ = false;
}

}  // namespace korven::batch
