#pragma once

#include <QLabel>

#include "device/scene_painter.hpp"
#include "panels/stage_words.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/side_panel.hpp"

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

/// Beside the table of stages: the sketch of the stage of the row in use, and below it in words
/// what it comes to; both follow what is typed.
class PannelloFasi : public PannelloLaterale {
    Q_OBJECT
 public:
    /// Both must outlive the panel.
    /// @param vita  follows the form already
    PannelloFasi(Base2_32& forma, VitaProgetto& vita);

 private:
    void aggiorna();

    Base2_32& forma_;
    VitaProgetto& vita_;
    SchizzoFase* schizzo_;
    QLabel* parole_;
};

}  // namespace korven::shell
