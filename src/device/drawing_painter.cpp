#include "device/drawing_painter.hpp"

#include <QPen>
#include <algorithm>
#include <optional>

#include "device/drawing_fonts.hpp"
#include "device/text_painting.hpp"
#include "plot/drawing_watch.hpp"

namespace korven::device {

PittoreDisegno::PittoreDisegno(QPainter& pittore, const plot::Riquadro& vista, double pixelPerCm,
                               double pennaMinima)
    : pittore_(pittore), vista_(vista), pixelPerCm_(pixelPerCm), pennaMinima_(pennaMinima) {
    pittore_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PittoreDisegno::limita(double ymin, double ymax) {
    ymin_ = ymin;
    ymax_ = ymax;
}

void PittoreDisegno::dipingi(const plot::ArchivioDisegno& archivio) {
    riempi(archivio.poligoni());
    archivio.perOgniLinea([this](const plot::Segmento& linea) { traccia(linea); });
    tracciaSpezzata();
    PennaTesti penna(pittore_);
    for (const plot::TestoPlot& testo : archivio.testi()) scrivi(testo, penna);
}

void PittoreDisegno::riempi(const std::vector<plot::PoligonoPlot>& poligoni) {
    std::optional<plot::Colore> inUso;  // a file tells every colour anew that is set
    for (const plot::PoligonoPlot& poligono : poligoni) {
        QPolygonF vertici;
        vertici.reserve(poligono.nVertici);
        for (int i = 0; i < poligono.nVertici; ++i) {
            const plot::Punto& v = poligono.vertici[static_cast<std::size_t>(i)];
            vertici << punto(v.x, v.y);
        }
        if (inUso != poligono.colore) {
            // A hairline, so that no light shows between polygons side by side.
            pittore_.setPen(QPen(qColore(poligono.colore), 0));
            pittore_.setBrush(qColore(poligono.colore));
            inUso = poligono.colore;
        }
        pittore_.drawPolygon(vertici);
    }
    pittore_.setBrush(Qt::NoBrush);
}

QPointF PittoreDisegno::punto(double x, double y) const {
    return {(x - vista_.xmin) * pixelPerCm_, (vista_.ymax - y) * pixelPerCm_};
}

void PittoreDisegno::traccia(const plot::Segmento& linea) {
    plot::controllaInterruzione();
    const double mezza = std::max(linea.spessore, pennaMinima_ / pixelPerCm_);  // and smoothing
    if (std::max(linea.y1, linea.y2) < ymin_ - mezza ||
        std::min(linea.y1, linea.y2) > ymax_ + mezza)
        return;
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
    pittore_.setPen(
        QPen(qColore(ultima_.colore), spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pittore_.drawPolyline(spezzata_);
    spezzata_.clear();
}

void PittoreDisegno::scrivi(const plot::TestoPlot& testo, PennaTesti& penna) {
    if (testo.testo.empty()) return;
    const QFont font = fontDisegno(testo.carattere);
    penna.scrivi({punto(testo.x, testo.y), font,
                  corpoPerRiga(font, rigaPerAltezza * testo.altezza * pixelPerCm_), testo.angolo,
                  testo.conteggio == plot::conteggioCentrato, testo.colore, testo.testo,
                  stiramento(testo.carattere, testo.testo)});
}

}  // namespace korven::device
