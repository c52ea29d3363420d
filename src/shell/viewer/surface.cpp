#include "shell/viewer/surface.hpp"

#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <utility>

#include "device/screen_surface.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

SuperficieGrafica::SuperficieGrafica(const device::SuperficieSchermo& disegno,
                                     Trascinato trascinato, QWidget* padre)
    : QWidget(padre), disegno_(disegno), trascinato_(std::move(trascinato)) {
    setObjectName(QStringLiteral("Picture7"));
    setAccessibleName(tradotto("Disegno"));
    setAccessibleDescription(tradotto("I valori stanno nelle tabelle di Risultati (Ctrl+R)"));
    presentaFigura(*this);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SuperficieGrafica::mostra() {
    const QSizeF misure = disegno_.immagine().deviceIndependentSize();
    setFixedSize(misure.toSize());
    update();
}

void SuperficieGrafica::arma(bool armata) {
    zoomArmato_ = armata;
    trascinamento_ = false;
    setCursor(armata ? Qt::CrossCursor : Qt::ArrowCursor);
    update();
}

void SuperficieGrafica::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    pittore.fillRect(rect(), Qt::white);  // a picture of odd size leaves half a pixel
    pittore.drawImage(QPointF(), disegno_.immagine());
    if (!trascinamento_) return;
    // Dark dashes on a light line: seen on every ground.
    const QRectF finestra = QRectF(inizio_, fine_).normalized();
    pittore.setPen(QPen(Qt::white, 1));
    pittore.drawRect(finestra);
    pittore.setPen(QPen(Qt::black, 1, Qt::DashLine));
    pittore.drawRect(finestra);
}

void SuperficieGrafica::mousePressEvent(QMouseEvent* evento) {
    if (!zoomArmato_ || evento->button() != Qt::LeftButton) return;
    trascinamento_ = true;
    inizio_ = fine_ = evento->position();
    update();
}

void SuperficieGrafica::mouseMoveEvent(QMouseEvent* evento) {
    if (!trascinamento_) return;
    fine_ = evento->position();
    update();
}

void SuperficieGrafica::mouseReleaseEvent(QMouseEvent* evento) {
    if (!trascinamento_ || evento->button() != Qt::LeftButton) return;
    fine_ = evento->position();
    const plot::Punto da = disegno_.puntoDelFoglio(inizio_);
    const plot::Punto a = disegno_.puntoDelFoglio(fine_);
    arma(false);
    trascinato_(da, a);
}

}  // namespace korven::shell
