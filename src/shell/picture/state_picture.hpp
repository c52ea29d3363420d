#pragma once

#include <QWidget>

#include "device/scene_painter.hpp"
#include "live/wall.hpp"

namespace korven::shell {

/// The wall of a project that is not open for work: a picture to scale, with the envelope of its
/// moments where there is room for it.
class QuadroStato : public QWidget {
 public:
    QuadroStato(const project::DatiProgetto& dati, QWidget* padre);

    [[nodiscard]] QSize sizeHint() const override { return {400, 240}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {180, 130}; }

 protected:
    void paintEvent(QPaintEvent* evento) override;

 private:
    live::PareteViva parete_;
    device::PittoreScena pittore_;
};

}  // namespace korven::shell
