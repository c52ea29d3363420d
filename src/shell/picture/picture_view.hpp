#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>

#include "device/scene_painter.hpp"
#include "live/live_project.hpp"
#include "scene/scene.hpp"

namespace korven::shell {

/// The picture of the open project. It keeps what it has painted last, so that a marker that moves
/// over it costs nothing, and paints anew when the project, its own size or the desktop's colours
/// have changed.
///
/// A depth is read under the mouse, or with Up and Down (a node), Home and End; screen readers have
/// what is read as its value and what the picture says as its description.
class VistaFigura : public QWidget {
    Q_OBJECT
 public:
    /// @param vivo  the project; outlives the widget
    explicit VistaFigura(const live::ProgettoVivo& vivo, QWidget* genitore = nullptr);

    /// Looks at the project again.
    void aggiorna();

    /// The picture as it is shown. @pre a project is open
    [[nodiscard]] const scene::Scena& scena();
    /// The depth that is read [m].
    [[nodiscard]] std::optional<double> profondita() const { return z_; }
    /// What stands there, in words; empty where nothing is read.
    [[nodiscard]] const QString& lettura() const { return lettura_; }

    /// Puts the picture into the clipboard, as an image and as SVG, in the light palette.
    void copia();

 signals:
    void letto(const QString& lettura);
    /// The picture is in the clipboard.
    void copiata();

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

 private:
    void leggi(std::optional<double> z);
    void rileggi();
    void ridisponi();
    void invalida();
    [[nodiscard]] scene::Scena disponi() const;
    void prepara();
    [[nodiscard]] bool leggeTasto(int tasto);

    const live::ProgettoVivo& vivo_;
    device::MisuraTestiQt misura_;
    device::PittoreScena pittore_;
    scene::Scena scena_;
    QPixmap immagine_;
    bool scenaVecchia_ = true, immagineVecchia_ = true;
    std::optional<double> z_;
    int apertura_ = 0;      // of the project that z_ was read on
    bool daTasti_ = false;  // the mouse that leaves takes no depth away that keys have chosen
    QString lettura_;
};

/// Makes screen readers see pictures as such: once in a program, before the first is shown.
void insegnaAccessoFigura();

}  // namespace korven::shell
