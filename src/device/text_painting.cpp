#include "device/text_painting.hpp"

#include <QFontMetricsF>

#include "device/qt_text.hpp"

namespace korven::device {

QColor qColore(plot::Colore colore) {
    return {plot::rosso(colore), plot::verde(colore), plot::blu(colore)};
}

void dipingiTesto(QPainter& pittore, const TestoDaDipingere& testo) {
    const QString scritto = qt(testo.testo);
    double inizio = 0;
    if (testo.centrato) inizio = -QFontMetricsF(testo.font).horizontalAdvance(scritto) / 2;

    // Written at the size of the font and scaled: a size in whole pixels would round it.
    const double scala = testo.corpo / testo.font.pixelSize();
    pittore.save();
    pittore.translate(testo.punto);
    pittore.rotate(-testo.gradi);
    pittore.scale(scala * testo.stiramento, scala);
    pittore.setFont(testo.font);
    pittore.setPen(qColore(testo.colore));
    pittore.drawText(QPointF(inizio, 0), scritto);
    pittore.restore();
}

}  // namespace korven::device
