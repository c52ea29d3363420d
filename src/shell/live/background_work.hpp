#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include "base/translated_texts.hpp"

namespace korven::shell {

/// Computes beside the forms, which never wait for it. One computation at a time; of the questions
/// that come meanwhile the last alone is followed up. In the translators' test mode, whose boxes
/// belong to the forms, it is no help and answers at once.
template <class Domanda, class Risposta>
class LavoroInDisparte : public QObject {
 public:
    /// Computes an answer in another thread, and throws nothing. Once `fermato` is true nobody
    /// waits for it any more: it may return whatever it has.
    using Calcola = std::function<Risposta(const Domanda&, const std::atomic<bool>& fermato)>;
    /// Told the answer to each question that is followed up, in the thread of this.
    using Risponde = std::function<void(const Domanda&, Risposta)>;

    LavoroInDisparte(Calcola calcola, Risponde risponde, QObject* padre)
        : QObject(padre), calcola_(std::move(calcola)), risponde_(std::move(risponde)) {}
    /// Asks the computation in progress to stop, and waits for it.
    ~LavoroInDisparte() override {
        fermato_ = true;
        if (lavoro_.joinable()) lavoro_.join();
    }

    void chiedi(Domanda domanda) {
        if (base::inModoProva()) {
            Risposta risposta = calcola_(domanda, std::atomic<bool>(false));
            risponde_(domanda, std::move(risposta));
        } else if (lavoro_.joinable()) {
            prossima_ = std::move(domanda);
        } else {
            comincia(std::move(domanda));
        }
    }

    /// Gives up all questions that have no answer yet: none will come.
    void ferma() {
        prossima_.reset();
        fermato_ = lavoro_.joinable();
    }

 private:
    void comincia(Domanda domanda) {
        prossima_.reset();
        fermato_ = false;
        lavoro_ = std::thread([this, domanda = std::move(domanda)] {
            auto trovata = std::make_shared<Risposta>(calcola_(domanda, fermato_));
            QMetaObject::invokeMethod(
                this, [this, domanda, trovata] { finita(domanda, std::move(*trovata)); },
                Qt::QueuedConnection);
        });
    }

    // An answer may lead to a question, which is then later than one that waits.
    void finita(const Domanda& domanda, Risposta risposta) {
        lavoro_.join();
        if (!fermato_) risponde_(domanda, std::move(risposta));
        if (auto altra = std::exchange(prossima_, {})) chiedi(std::move(*altra));
    }

    Calcola calcola_;
    Risponde risponde_;
    std::atomic<bool> fermato_ = false;
    std::thread lavoro_;
    std::optional<Domanda> prossima_;
};

}  // namespace korven::shell
