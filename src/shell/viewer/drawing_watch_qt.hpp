#pragma once

#include <QString>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>

#include "plot/drawing_watch.hpp"

namespace korven::shell {

/// The box of work on a drawing that takes long: it says so and lets its user end it. Nothing else
/// can be clicked meanwhile, as the plotter is in use.
class DisegnoInCorso : public QWidget {
    Q_OBJECT
 public:
    explicit DisegnoInCorso(QWidget* padre);

 signals:
    void interruzione();

 protected:
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
};

/// Serves the event queue while a drawing is worked on, and shows that box once the work has taken
/// half a second. Ends it when the user wants so, or the system ends the program.
class SorveglianzaQt : public plot::SorvegliaDisegno {
 public:
    using Istante = std::chrono::steady_clock::time_point;
    using Orologio = std::function<Istante()>;

    /// @param sopra     the form that the box lies on; nullptr: none
    /// @param orologio  the time of day, another one in tests
    explicit SorveglianzaQt(std::function<QWidget*()> sopra,
                            Orologio orologio = std::chrono::steady_clock::now)
        : sopra_(std::move(sopra)), orologio_(std::move(orologio)) {}

    void inizia() override;
    [[nodiscard]] bool fermare() override;
    void finita() override;

 private:
    void mostra();

    std::function<QWidget*()> sopra_;
    Orologio orologio_;
    int lavori_ = 0;
    unsigned chiamate_ = 0;
    Istante inizio_, servita_;
    bool fermata_ = false;
    std::unique_ptr<DisegnoInCorso> finestra_;
};

}  // namespace korven::shell
