#pragma once

#include <QPointF>
#include <QWidget>
#include <functional>

#include "plot/geometry.hpp"

namespace korven::device {
class SuperficieSchermo;
}

namespace korven::shell {

/// The place in the viewer where the drawing is shown, and where a drag of the mouse marks what is
/// to be enlarged.
class SuperficieGrafica : public QWidget {
 public:
    /// Called at the end of a drag with the two points where it began and ended [cm]. They may lie
    /// outside of the drawing.
    using Trascinato = std::function<void(plot::Punto inizio, plot::Punto fine)>;

    /// @param disegno  whose picture is shown; not owned
    SuperficieGrafica(const device::SuperficieSchermo& disegno, Trascinato trascinato,
                      QWidget* padre);

    /// Takes the size of the picture and shows it.
    void mostra();

    /// Lets the next drag mark a window, or not.
    void arma(bool armata);
    [[nodiscard]] bool armata() const { return zoomArmato_; }

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

 private:
    const device::SuperficieSchermo& disegno_;
    Trascinato trascinato_;
    bool zoomArmato_ = false;
    bool trascinamento_ = false;
    QPointF inizio_;
    QPointF fine_;
};

}  // namespace korven::shell
