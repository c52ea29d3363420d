#include "device/text_painting.hpp"

#include <QFontMetricsF>

#include "device/qt_text.hpp"

namespace korven::device {

QColor qColore(plot::Colore colore) {
    return {plot::rosso(colore), plot::verde(colore), plot::blu(colore)};
}

PennaTesti::PennaTesti(QPainter& pittore) : pittore_(pittore), foglio_(pittore.worldTransform()) {
    pittore_.save();
}

PennaTesti::~PennaTesti() { pittore_.restore(); }

void PennaTesti::scrivi(const TestoDaDipingere& testo) {
    const QString scritto = qt(testo.testo);
    double inizio = 0;
    if (testo.centrato) inizio = -QFontMetricsF(testo.font).horizontalAdvance(scritto) / 2;
    pittore_.setPen(qColore(testo.colore));
    if (testo.glifi != nullptr)
        if (const auto& righe = testo.glifi->righe(scritto); !righe.empty()) {
            const QPointF punto = scala(testo, GlifiFont::corpo);
            for (const QGlyphRun& riga : righe) pittore_.drawGlyphRun(punto, riga);
            return;
        }
    pittore_.setFont(testo.font);
    const QPointF punto = scala(testo, testo.font.pixelSize());
    pittore_.drawText(punto + QPointF(inizio, 0), scritto);
}

// Written at the size of the font and scaled: a size in whole pixels would round it.
QPointF PennaTesti::scala(const TestoDaDipingere& testo, double corpo) {
    const double scala = testo.corpo / corpo;
    QTransform locale;
    locale.rotate(-testo.gradi);
    locale.scale(scala * testo.stiramento, scala);
    if (locale != locale_) pittore_.setWorldTransform(locale * foglio_);
    locale_ = locale;
    return locale.inverted().map(testo.punto);
}

void dipingiTesto(QPainter& pittore, const TestoDaDipingere& testo) {
    PennaTesti(pittore).scrivi(testo);
}

}  // namespace korven::device
