#include "device/text_painting.hpp"

#include <QFontMetricsF>

namespace korven::device {

QColor qColore(plot::Colore colore) {
    return {plot::rosso(colore), plot::verde(colore), plot::blu(colore)};
}

QString qTesto(std::string_view testo) {
    return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
}

void dipingiTesto(QPainter& painter, const TestoDaDipingere& testo) {
    const QString scritto = qTesto(testo.testo);
    double inizio = 0;
    if (testo.centrato) inizio = -QFontMetricsF(testo.font).horizontalAdvance(scritto) / 2;

    // Written at the size of the font and scaled: a size in whole pixels would round it.
    const double scala = testo.corpo / testo.font.pixelSize();
    painter.save();
    painter.translate(testo.punto);
    painter.rotate(-testo.gradi);
    painter.scale(scala, scala);
    painter.setFont(testo.font);
    painter.setPen(qColore(testo.colore));
    painter.drawText(QPointF(inizio, 0), scritto);
    painter.restore();
}

}  // namespace korven::device
