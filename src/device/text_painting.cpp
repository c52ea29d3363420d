#include "device/text_painting.hpp"

#include <QFontMetricsF>

#include "device/qt_text.hpp"

namespace korven::device {

QColor qColore(plot::Colore colore) {
    return {plot::rosso(colore), plot::verde(colore), plot::blu(colore)};
}

void dipingiTesto(QPainter& painter, const TestoDaDipingere& testo) {
    const QString scritto = qt(testo.testo);
    double inizio = 0;
    if (testo.centrato) inizio = -QFontMetricsF(testo.font).horizontalAdvance(scritto) / 2;

    // Written at the size of the font and scaled: a size in whole pixels would round it.
    const double scala = testo.corpo / testo.font.pixelSize();
    painter.save();
    painter.translate(testo.punto);
    painter.rotate(-testo.gradi);
    painter.scale(scala * testo.stiramento, scala);
    painter.setFont(testo.font);
    painter.setPen(qColore(testo.colore));
    painter.drawText(QPointF(inizio, 0), scritto);
    painter.restore();
}

}  // namespace korven::device
