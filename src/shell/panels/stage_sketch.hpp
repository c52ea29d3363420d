#pragma once

#include <QLabel>
#include <optional>
#include <string>

#include "device/scene_painter.hpp"
#include "shell/live/live_view.hpp"

namespace korven::shell {

/// The wall as it is in one stage, to scale, beside the curve that the main picture shows where
/// there is room for both.
class SchizzoFase : public QWidget {
    Q_OBJECT
 public:
    SchizzoFase(const VitaProgetto& vita, QWidget* genitore);

    /// @param fase  nothing: an empty sheet
    void mostra(std::optional<int> fase);
    [[nodiscard]] std::optional<int> fase() const { return fase_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* evento) override;

 private:
    const VitaProgetto& vita_;
    device::PittoreScena pittore_;
    std::optional<int> fase_;
};

/// The sketch of a stage, and below it in words what it comes to.
class SchizzoConParole : public QWidget {
 public:
    /// @param nome    of the sketch, for those who can't see it; translated
    /// @param parole  object name of the words
    /// @param righe   of words that there is room for at least
    SchizzoConParole(const VitaProgetto& vita, const QString& nome, const char* parole, int righe,
                     QWidget* genitore);

    /// @param fase  nothing: an empty sheet
    void mostra(std::optional<int> fase, const std::string& parole);

 private:
    SchizzoFase* schizzo_;
    QLabel* parole_;
};

}  // namespace korven::shell
