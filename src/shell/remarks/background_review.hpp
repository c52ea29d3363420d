#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <thread>

#include "commands/open_remarks.hpp"

namespace korven::shell {

/// Computes the remarks on results beside the forms, which never wait for it: a fine mesh takes up
/// to a second. One computation at a time; of the questions that come meanwhile the last alone is
/// followed up. In the translators' test mode, whose boxes belong to the forms, it is no help and
/// answers at once.
class RevisioneInDisparte : public QObject {
 public:
    using Domanda = commands::OsservazioniAperte::Domanda;

    /// @param risponde  told the answer to each question that is followed up, in the thread of this
    RevisioneInDisparte(std::function<void(int numero, review::Osservazioni)> risponde,
                        QObject* padre);
    /// Waits for the computation in progress.
    ~RevisioneInDisparte() override;

    void chiedi(const Domanda& domanda);

 private:
    void comincia(const Domanda& domanda);
    void finita(int numero, const review::Osservazioni& trovate);

    std::function<void(int, review::Osservazioni)> risponde_;
    std::thread lavoro_;
    std::optional<Domanda> prossima_;
};

}  // namespace korven::shell
