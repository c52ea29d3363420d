#pragma once

#include <QString>
#include <QWidget>

class QPainter;

namespace korven::shell {

/// The picture of the main form: a section through an anchored wall, with the ground it retains,
/// its excavation stages and the line of its moments. Drawn, so that it is sharp at every size.
class QuadroParatia : public QWidget {
    Q_OBJECT
 public:
    explicit QuadroParatia(QWidget* genitore = nullptr);

    /// Whether the name of the program is written in the sky.
    void mostraTitolo(bool mostra) {
        titolo_ = mostra;
        update();
    }

 signals:
    void premuta();

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

 private:
    // Translated once: a box of the translators' test mode must not open while a window is painted.
    const QString sottotitolo_;
    bool titolo_ = true;
};

}  // namespace korven::shell
