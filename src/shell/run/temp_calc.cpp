#include "shell/run/temp_calc.hpp"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <iterator>

#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

QRect riquadroTempCalc(const QRect& schermo) {
    return {schermo.left() + schermo.width() / 3, schermo.top() + schermo.height() / 6,
            schermo.width() / 3, 2 * schermo.height() / 3};
}

TempCalc::TempCalc(QWidget* principale)
    : QWidget(principale, Qt::Dialog),  // which desktops keep above its parent
      deformata_(tradotto("Deformata")),
      momenti_(tradotto("Momento flettente")) {
    setObjectName("TempCalc");
    setWindowTitle(tradotto("Calcolo in corso"));
    setWindowModality(Qt::ApplicationModal);
    setAccessibleName(windowTitle());
    setGeometry(riquadroTempCalc(screen()->availableGeometry()));
    command1_ = new QPushButton(tradotto("&Interrompi"), this);
    command1_->setObjectName("Command1");
    connect(command1_, &QPushButton::clicked, this, &TempCalc::interrompi);
    command1_->setFocus();
    riga_ = new QLabel(this);
    riga_->setObjectName("riga");
    riga_->setTextFormat(Qt::PlainText);
    riga_->setWordWrap(true);
    riga_->setMargin(4);
    riga_->setAutoFillBackground(true);
    riga_->hide();
    disponi();
}

void TempCalc::mostra(QuadroAvanzamento quadro) {
    quadro_ = std::move(quadro);
    update();
}

void TempCalc::racconta(const QString& riga) {
    if (inRighe(riga) == riga_->text()) return;
    riga_->setText(inRighe(riga));
    setAccessibleDescription(riga);
    disponi();
    riga_->setVisible(!riga.isEmpty());
}

void TempCalc::disponi() {
    const QSize bottone = command1_->sizeHint();
    command1_->setGeometry(width() - bottone.width() * 5 / 2, height() - bottone.height() * 5 / 2,
                           bottone.width(), bottone.height());
    constexpr int margine = 8;
    constexpr int righeLegenda = 3;  // with the room around them
    const int larghezza = width() - 2 * margine;
    riga_->setGeometry(margine, righeLegenda * altezzaRiga(), larghezza,
                       riga_->heightForWidth(larghezza));
}

void TempCalc::resizeEvent(QResizeEvent*) { disponi(); }

void TempCalc::closeEvent(QCloseEvent* evento) {
    interrompi();
    evento->ignore();
}

void TempCalc::keyPressEvent(QKeyEvent* evento) {
    constexpr int tasti[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};
    if (std::find(std::begin(tasti), std::end(tasti), evento->key()) != std::end(tasti))
        interrompi();
    else
        QWidget::keyPressEvent(evento);
}

void TempCalc::interrompi() {
    command1_->setEnabled(false);  // seen at the end of the iteration in progress
    emit interruzione();
}

void TempCalc::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    pittore.fillRect(rect(), Qt::white);
    pittore.setRenderHint(QPainter::Antialiasing);
    const auto punto = [this](QPointF p) { return QPointF(p.x() * width(), p.y() * height()); };
    for (const auto& [colore, linea] : tratti(quadro_)) {
        pittore.setPen(QPen(colore, 1.6));
        pittore.drawLine(punto(linea.p1()), punto(linea.p2()));
    }
    legenda(pittore);
}

int TempCalc::altezzaRiga() const { return fontMetrics().height() + 4; }

// In the corner where the wall does not move and the button is not.
void TempCalc::legenda(QPainter& pittore) const {
    const int riga = altezzaRiga();
    int y = riga;
    for (const auto& [nome, colore] :
         {std::pair{deformata_, coloreDeformata}, std::pair{momenti_, coloreMomenti}}) {
        pittore.setPen(QPen(colore, 3));
        pittore.drawLine(8, y, 28, y);
        pittore.setPen(Qt::black);
        pittore.drawText(34, y + fontMetrics().ascent() / 2, nome);
        y += riga;
    }
}

}  // namespace korven::shell
