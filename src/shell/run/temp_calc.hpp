#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "shell/run/progress_picture.hpp"

namespace korven::shell {

/// The progress window `TempCalc`: the picture of the wall as the last iteration left it, and the
/// stop button `Command1` over its lower right corner. It stays above the main form and keeps the
/// user out of the other windows while a run lasts. Closing it, Esc, Enter and the space bar do
/// what the button does; a run ends only by itself.
class TempCalc : public QWidget {
    Q_OBJECT
 public:
    explicit TempCalc(QWidget* principale);

    void mostra(QuadroAvanzamento quadro);
    [[nodiscard]] const QuadroAvanzamento& quadro() const { return quadro_; }
    /// Says a line under the legend, over the picture; an empty one takes it away.
    void racconta(const QString& riga);

 signals:
    void interruzione();

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

 private:
    void disponi();
    void legenda(QPainter& pittore) const;
    [[nodiscard]] int altezzaRiga() const;
    void interrompi();

    QPushButton* command1_;
    QLabel* riga_;
    QuadroAvanzamento quadro_;
    // Translated once: a box of the translators' test mode must not open while a window is painted.
    const QString deformata_, momenti_;
};

/// A third of the screen's width, two thirds of its height, in the middle.
[[nodiscard]] QRect riquadroTempCalc(const QRect& schermo);

}  // namespace korven::shell
