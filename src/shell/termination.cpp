#include "shell/termination.hpp"

#include <QCoreApplication>
#include <QSocketNotifier>

#include "analysis/run_flags.hpp"
#include "commands/fatal_error.hpp"

namespace korven::shell {

Terminazione::Terminazione() {
    chiesta_ = false;
    if (segnali_.descrittore() < 0) return;
    auto* avviso = new QSocketNotifier(segnali_.descrittore(), QSocketNotifier::Read, this);
    connect(avviso, &QSocketNotifier::activated, this, &Terminazione::ricevuto);
}

void Terminazione::ricevuto() {
    const int segnale = segnali_.prossimo();
    if (segnale == 0) return;
    chiesta_ = true;
    commands::recuperaProgetto();
    analysis::stopCalcolo = true;
    QCoreApplication::exit(128 + segnale);
}

}  // namespace korven::shell
