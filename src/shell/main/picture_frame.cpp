#include "shell/main/picture_frame.hpp"

#include "shell/main/wall_picture.hpp"

namespace korven::shell {

CorniceFigura::CorniceFigura(QWidget* genitore)
    : QWidget(genitore), quadro_(new QuadroParatia(this)) {
    quadro_->setObjectName("Image1");
}

void CorniceFigura::accogli(QWidget* figura, QSize emblema) {
    figura_ = figura;
    emblema_ = emblema;
    figura_->setParent(this);
    figura_->hide();
}

void CorniceFigura::mostra() {
    if (mostrata_ || figura_ == nullptr) return;
    mostrata_ = true;
    quadro_->mostraTitolo(false);
    quadro_->setToolTip(quadro_->accessibleName());
    quadro_->setCursor(Qt::PointingHandCursor);
    disponi();
    figura_->show();
    quadro_->raise();
    figura_->setFocus();
}

void CorniceFigura::resizeEvent(QResizeEvent*) { disponi(); }

void CorniceFigura::disponi() {
    constexpr int bordo = 3;
    if (!mostrata_) {
        quadro_->setGeometry(rect());
        return;
    }
    figura_->setGeometry(rect());
    quadro_->setGeometry(bordo, height() - bordo - emblema_.height(), emblema_.width(),
                         emblema_.height());
}

}  // namespace korven::shell
