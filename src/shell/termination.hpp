#pragma once

#include <QObject>

#include "base/end_signals.hpp"

namespace korven::shell {

/// Answers the system's signals to end: the unsaved project goes into a rescue file
/// (fatal_error.hpp), a run stops, and all event loops end with 128 + signal. One object at a time.
class Terminazione : public QObject {
    Q_OBJECT
 public:
    Terminazione();

 private:
    void ricevuto();

    base::SegnaliFine segnali_;
};

}  // namespace korven::shell
