#include "device/scene_painter.hpp"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>

#include "device/qt_text.hpp"
#include "scene/hatch_tiles.hpp"

namespace korven::device {

namespace {

constexpr double spessoreCampitura = 0.9;
constexpr double curvaPiastra = 2.5;        // of a plate's corners
constexpr double altezzaMaiuscole = 0.715;  // of a font's size, where it does not tell
constexpr std::size_t piastrelleTenute = 200;

QPolygonF poligono(const std::vector<scene::Punto>& punti) {
    QPolygonF p;
    p.reserve(static_cast<qsizetype>(punti.size()));
    for (const scene::Punto& uno : punti) p << QPointF(uno.x, uno.y);
    return p;
}

QPen penna(const QColor& colore, double spessore, scene::Tratteggio tratteggio) {
    QPen p(colore, spessore, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (tratteggio == scene::Tratteggio::linee) p.setDashPattern({7 / spessore, 4 / spessore});
    if (tratteggio == scene::Tratteggio::punti) p.setDashPattern({2 / spessore, 3 / spessore});
    return p;
}

// One pattern of a hatch on a transparent ground, a whole number of pixels of the device wide.
QImage immagine(const scene::Piastrella& piastrella, const QColor& colore, double rapporto) {
    const int lato = std::max(1, static_cast<int>(std::lround(piastrella.lato * rapporto)));
    QImage immagine(lato, lato, QImage::Format_ARGB32_Premultiplied);
    immagine.fill(Qt::transparent);
    QPainter p(&immagine);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(lato / piastrella.lato, lato / piastrella.lato);
    p.setPen(QPen(colore, spessoreCampitura, Qt::SolidLine, Qt::RoundCap));
    // What runs out of the tile comes in again on the other side.
    for (const double dx : {-piastrella.lato, 0.0, piastrella.lato})
        for (const double dy : {-piastrella.lato, 0.0, piastrella.lato})
            for (const auto& [da, a] : piastrella.tratti)
                p.drawLine(QPointF(da.x + dx, da.y + dy), QPointF(a.x + dx, a.y + dy));
    return immagine;
}

}  // namespace

QFont fontScena(QFont font, double corpo, bool grassetto) {
    // Sizes in pixels are whole numbers; the tenths come from the painter.
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(corpo))));
    font.setBold(grassetto);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double MisuraTestiQt::larghezza(std::string_view testo, double corpo, bool grassetto) const {
    const QFont font = fontScena(font_, corpo, grassetto);
    return QFontMetricsF(font).horizontalAdvance(qt(testo)) * corpo / font.pixelSize();
}

QColor qColore(scene::Tinta tinta, scene::Tavolozza tavolozza) {
    const scene::Rgb c = scene::colore(tinta, tavolozza);
    return {c.r, c.g, c.b};
}

void PittoreScena::dipingi(QPainter& pittore, const scene::Scena& scena) {
    pittore_ = &pittore;
    vettoriale_ = false;
    dipingi(scena);
}

void PittoreScena::dipingiVettoriale(QPainter& pittore, const scene::Scena& scena) {
    pittore_ = &pittore;
    vettoriale_ = true;
    dipingi(scena);
}

void PittoreScena::dipingi(const scene::Scena& scena) {
    pittore_->save();
    pittore_->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const scene::Primitiva& una : scena.primitive)
        std::visit([this](const auto& f) { figura(f); }, una.figura);
    pittore_->restore();
}

void PittoreScena::figura(const scene::Area& area) {
    pittore_->setPen(Qt::NoPen);
    pittore_->setBrush(colore(area.tinta));
    pittore_->drawPolygon(poligono(area.punti));
}

void PittoreScena::figura(const scene::Campitura& campitura) {
    if (vettoriale_) {
        pittore_->setPen(
            QPen(colore(campitura.tinta), spessoreCampitura, Qt::SolidLine, Qt::RoundCap));
        for (const auto& [da, a] : scene::tratti(campitura))
            pittore_->drawLine(QPointF(da.x, da.y), QPointF(a.x, a.y));
        return;
    }
    const double rapporto = pittore_->deviceTransform().m11();
    pittore_->setPen(Qt::NoPen);
    for (const QImage& piastrella : piastrelle(campitura, rapporto)) {
        QBrush pennello(piastrella);
        pennello.setTransform(QTransform::fromScale(1 / rapporto, 1 / rapporto));
        pittore_->setBrush(pennello);
        pittore_->drawPolygon(poligono(campitura.punti));
    }
}

void PittoreScena::figura(const scene::Linea& linea) {
    pittore_->setPen(penna(colore(linea.tinta), linea.spessore, linea.tratteggio));
    pittore_->setBrush(Qt::NoBrush);
    pittore_->drawPolyline(poligono(linea.punti));
}

void PittoreScena::figura(const scene::Freccia& freccia) {
    const std::vector<scene::Punto> testa = scene::puntaFreccia(freccia);
    const scene::Linea asta{freccia.punti, freccia.tinta, freccia.spessore};
    figura(asta);
    if (testa.empty()) return;
    figura(scene::Area{testa, freccia.tinta});
}

void PittoreScena::figura(const scene::Testo& testo) {
    if (testo.piastra) {
        const scene::Riquadro r = testo.riquadro();
        pittore_->setPen(Qt::NoPen);
        pittore_->setBrush(colore(testo.fondo));
        pittore_->drawRoundedRect(QRectF(r.sinistra, r.alto, r.larghezza(), r.altezza()),
                                  curvaPiastra, curvaPiastra);
    }
    const QFont font = fontScena(font_, testo.corpo, testo.grassetto);
    const double ingrandito = testo.corpo / font.pixelSize();
    const double da = testo.ancora == scene::Ancora::sinistra ? 0
                      : testo.ancora == scene::Ancora::centro ? -testo.larghezza / 2
                                                              : -testo.larghezza;
    pittore_->save();
    pittore_->translate(testo.punto.x, testo.punto.y);
    if (testo.verticale) pittore_->rotate(-90);
    pittore_->translate(da, altezzaMaiuscole / 2 * testo.corpo);
    pittore_->scale(ingrandito, ingrandito);
    pittore_->setFont(font);
    pittore_->setPen(colore(testo.tinta));
    pittore_->drawText(QPointF(0, 0), qt(testo.testo));
    pittore_->restore();
}

const std::vector<QImage>& PittoreScena::piastrelle(const scene::Campitura& campitura,
                                                    double rapporto) {
    const QColor tratto = colore(campitura.tinta);
    const std::tuple chiave(campitura.codice, tratto.rgb(), rapporto);
    const auto trovate = piastrelle_.find(chiave);
    if (trovate != piastrelle_.end()) return trovate->second;
    if (piastrelle_.size() >= piastrelleTenute) piastrelle_.clear();
    std::vector<QImage>& nuove = piastrelle_[chiave];
    for (const scene::Piastrella& una : scene::piastrelle(campitura.codice))
        nuove.push_back(immagine(una, tratto, rapporto));
    return nuove;
}

}  // namespace korven::device
