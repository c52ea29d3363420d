#include "shell/live/background_results.hpp"

#include <utility>

#include "base/translated_texts.hpp"

namespace korven::shell {

RisultatiInDisparte::RisultatiInDisparte(
    std::function<void(int numero, live::RisultatiLenti)> risponde, QObject* padre)
    : QObject(padre), risponde_(std::move(risponde)) {}

RisultatiInDisparte::~RisultatiInDisparte() {
    if (lavoro_.joinable()) lavoro_.join();
}

void RisultatiInDisparte::chiedi(const Domanda& domanda) {
    if (base::inModoProva())
        risponde_(domanda.numero, live::calcolaLenti(domanda));
    else if (lavoro_.joinable())
        prossima_ = domanda;
    else
        comincia(domanda);
}

void RisultatiInDisparte::comincia(const Domanda& domanda) {
    lavoro_ = std::thread([this, domanda] {
        QMetaObject::invokeMethod(
            this,
            [this, numero = domanda.numero, trovati = live::calcolaLenti(domanda)] {
                finita(numero, trovati);
            },
            Qt::QueuedConnection);
    });
}

void RisultatiInDisparte::finita(int numero, const live::RisultatiLenti& trovati) {
    lavoro_.join();
    risponde_(numero, trovati);
    if (const auto domanda = std::exchange(prossima_, {})) comincia(*domanda);
}

}  // namespace korven::shell
