#include "shell/remarks/background_review.hpp"

#include <exception>
#include <utility>

#include "base/translated_texts.hpp"
#include "review/result_review.hpp"

namespace korven::shell {

namespace {

// Numbers beyond all use are no reason to end a program that nobody has asked to compute.
review::Osservazioni esamina(const RevisioneInDisparte::Domanda& domanda) {
    try {
        return review::esaminaRisultati(domanda.dati, domanda.nSeg);
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace

RevisioneInDisparte::RevisioneInDisparte(
    std::function<void(int numero, review::Osservazioni)> risponde, QObject* padre)
    : QObject(padre), risponde_(std::move(risponde)) {}

RevisioneInDisparte::~RevisioneInDisparte() {
    if (lavoro_.joinable()) lavoro_.join();
}

void RevisioneInDisparte::chiedi(const Domanda& domanda) {
    if (base::inModoProva())
        risponde_(domanda.numero, esamina(domanda));
    else if (lavoro_.joinable())
        prossima_ = domanda;
    else
        comincia(domanda);
}

void RevisioneInDisparte::comincia(const Domanda& domanda) {
    lavoro_ = std::thread([this, domanda] {
        QMetaObject::invokeMethod(
            this,
            [this, numero = domanda.numero, trovate = esamina(domanda)] {
                finita(numero, trovate);
            },
            Qt::QueuedConnection);
    });
}

void RevisioneInDisparte::finita(int numero, const review::Osservazioni& trovate) {
    lavoro_.join();
    risponde_(numero, trovate);
    if (const auto domanda = std::exchange(prossima_, {})) comincia(*domanda);
}

}  // namespace korven::shell
