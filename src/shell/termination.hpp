#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <csignal>

namespace korven::shell {

/// Answers the system's signals to end (SIGTERM at shutdown, SIGHUP when the connection or terminal
/// goes, SIGINT): the unsaved project goes into a rescue file (fatal_error.hpp), a run stops, and
/// all event loops end with 128 + signal. A second signal of the same kind ends the program at
/// once. One object at a time; the handlers found before are put back behind it.
class Terminazione : public QObject {
    Q_OBJECT
 public:
    Terminazione();
    ~Terminazione() override;

 private:
    void ricevuto();

    static constexpr std::array segnali = {SIGTERM, SIGHUP, SIGINT};
    std::array<struct sigaction, segnali.size()> prima_{};
    std::array<int, 2> tubo_{-1, -1};
    QSocketNotifier* avviso_ = nullptr;
};

}  // namespace korven::shell
