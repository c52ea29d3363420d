#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace korven::shell {

/// A part of a form that asks for its whole size and scrolls where the screen has no room for it.
class ParteScorrevole : public QScrollArea {
 public:
    ParteScorrevole(QWidget* parte, QWidget* genitore) : QScrollArea(genitore) {
        setFrameShape(NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(parte);
    }

    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
    /// As wide as the part and its scroll bar need, and a few lines high.
    [[nodiscard]] QSize minimumSizeHint() const override {
        constexpr int righe = 6;
        return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
                righe * fontMetrics().height()};
    }
};

}  // namespace korven::shell
