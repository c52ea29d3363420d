#include "device/drawing_painter.hpp"

#include <QColor>
#include <QPen>
#include <QString>
#include <algorithm>

#include "device/drawing_fonts.hpp"
#include "plot/colour.hpp"

namespace korven::device {

namespace {

QColor qColore(plot::Colore colore) {
    return {plot::rosso(colore), plot::verde(colore), plot::blu(colore)};
}

}  // namespace

PittoreDisegno::PittoreDisegno(QPainter& painter, const plot::Riquadro& vista, double pixelPerCm,
                               double pennaMinima)
    : painter_(painter), vista_(vista), pixelPerCm_(pixelPerCm), pennaMinima_(pennaMinima) {
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PittoreDisegno::dipingi(const plot::ArchivioDisegno& archivio) {
    for (const plot::PoligonoPlot& poligono : archivio.poligoni()) {
        QPolygonF vertici;
        for (int i = 0; i < poligono.nVertici; ++i) {
            const plot::Punto& v = poligono.vertici[static_cast<std::size_t>(i)];
            vertici << punto(v.x, v.y);
        }
        painter_.setPen(qColore(poligono.colore));
        painter_.setBrush(qColore(poligono.colore));
        painter_.drawPolygon(vertici);
        painter_.setBrush(Qt::NoBrush);
    }
    archivio.perOgniLinea([this](const plot::Segmento& linea) { traccia(linea); });
    tracciaSpezzata();
    for (const plot::TestoPlot& testo : archivio.testi()) scrivi(testo);
}

QPointF PittoreDisegno::punto(double x, double y) const {
    return {(x - vista_.xmin) * pixelPerCm_, (vista_.ymax - y) * pixelPerCm_};
}

void PittoreDisegno::traccia(const plot::Segmento& linea) {
    const bool prosegue = !spezzata_.isEmpty() && linea.x1 == ultima_.x2 &&
                          linea.y1 == ultima_.y2 && linea.colore == ultima_.colore &&
                          linea.spessore == ultima_.spessore;
    if (!prosegue) {
        tracciaSpezzata();
        spezzata_ << punto(linea.x1, linea.y1);
    }
    spezzata_ << punto(linea.x2, linea.y2);
    ultima_ = linea;
}

void PittoreDisegno::tracciaSpezzata() {
    if (spezzata_.isEmpty()) return;
    const double spessore = std::max(ultima_.spessore * pixelPerCm_, pennaMinima_);
    painter_.setPen(
        QPen(qColore(ultima_.colore), spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawPolyline(spezzata_);
    spezzata_.clear();
}

void PittoreDisegno::scrivi(const plot::TestoPlot& testo) {
    if (testo.testo.empty()) return;
    QFont font = fontDisegno(testo.carattere);
    const double corpo = corpoPerRiga(font, rigaPerAltezza * testo.altezza * pixelPerCm_);
    const QString scritto = QString::fromUtf8(testo.testo.data(), qsizetype(testo.testo.size()));
    double inizio = 0;
    if (testo.conteggio == plot::conteggioCentrato)
        inizio = -QFontMetricsF(font).horizontalAdvance(scritto) / 2;

    // Written at the size for measuring and scaled: a size in whole pixels would round it.
    painter_.save();
    painter_.translate(punto(testo.x, testo.y));
    painter_.rotate(-testo.angolo);
    painter_.scale(corpo / font.pixelSize(), corpo / font.pixelSize());
    painter_.setFont(font);
    painter_.setPen(qColore(testo.colore));
    painter_.drawText(QPointF(inizio, 0), scritto);
    painter_.restore();
}

}  // namespace korven::device
