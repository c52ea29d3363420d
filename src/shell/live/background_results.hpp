#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <thread>

#include "live/slow_results.hpp"

namespace korven::shell {

/// Computes what takes longer than a key beside the forms, which never wait for it: a fine mesh
/// takes up to a second. One computation at a time; of the questions that come meanwhile the last
/// alone is followed up. In the translators' test mode, whose boxes belong to the forms, it is no
/// help and answers at once.
class RisultatiInDisparte : public QObject {
 public:
    using Domanda = live::DomandaLenta;

    /// @param risponde  told the answer to each question that is followed up, in the thread of this
    RisultatiInDisparte(std::function<void(int numero, live::RisultatiLenti)> risponde,
                        QObject* padre);
    /// Waits for the computation in progress.
    ~RisultatiInDisparte() override;

    void chiedi(const Domanda& domanda);

 private:
    void comincia(const Domanda& domanda);
    void finita(int numero, const live::RisultatiLenti& trovati);

    std::function<void(int, live::RisultatiLenti)> risponde_;
    std::thread lavoro_;
    std::optional<Domanda> prossima_;
};

}  // namespace korven::shell
