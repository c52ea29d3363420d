#include "batch/console.hpp"

#include <unistd.h>

#include <cmath>
#include <iostream>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::batch {

namespace {

constexpr const char* cancellaRiga = "\r\x1b[K";

// A wall on its way to failure may move beyond all numbers; the run judges that at its end.
std::string breve(double valore, int decimali) {
    return std::isfinite(valore) ? base::formattaDecimali(valore, decimali) : "-";
}

// Short numbers: the line must fit a terminal. Displacement in m, moment in kN m.
std::string rigaAvanzamento(const analysis::StatoIterazione& stato) {
    return base::traduttore("fase") + "=" + std::to_string(stato.fase) +
           "   iter.=" + std::to_string(stato.iterazione) + "   Ymax=" + breve(stato.yMax, 4) +
           "   Mmax=" + breve(10 * stato.mMax, 2);
}

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
    std::cerr << rigaAvanzamento(stato);
    rigaAperta_ = !stato.convergente;
    std::cerr << (rigaAperta_ ? "" : "\n") << std::flush;
}

void AvanzamentoConsole::chiudi() {
    if (rigaAperta_) std::cerr << '\n';
    rigaAperta_ = false;
}

}  // namespace korven::batch
