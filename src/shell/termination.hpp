#pragma once

#include <QObject>

#include "base/process/end_signals.hpp"

namespace korven::shell {

/// Answers the system's signals to end: the unsaved project goes into a rescue file
/// (fatal_error.hpp), a run stops, and all event loops end with 128 + signal. One object at a time.
class Terminazione : public QObject {
    Q_OBJECT
 public:
    Terminazione();
    ~Terminazione() override { chiesta_ = false; }
    Terminazione(const Terminazione&) = delete;
    Terminazione& operator=(const Terminazione&) = delete;

    /// True once a signal has come. A run that begins afterwards, after a question that the signal
    /// closed, asks this, since it has put `stopCalcolo` back.
    [[nodiscard]] static bool chiesta() { return chiesta_; }

 private:
    void ricevuto();

    static inline bool chiesta_ = false;

    base::SegnaliFine segnali_;
};

}  // namespace korven::shell
