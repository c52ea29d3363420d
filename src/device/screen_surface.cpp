#include "device/screen_surface.hpp"

#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/code_page.hpp"
#include "device/drawing_fonts.hpp"
#include "device/text_painting.hpp"
#include "plot/line_clip.hpp"

namespace korven::device {

namespace {

// A pen whose lines Qt paints the quick way: round ends cost ten times as much and show only on
// wide lines.
QPen pennaSchermo(plot::Colore colore, int spessore) {
    constexpr int larga = 3;
    return {qColore(colore), static_cast<double>(spessore), Qt::SolidLine,
            spessore < larga ? Qt::SquareCap : Qt::RoundCap, Qt::RoundJoin};
}

// Upright and level lines are laid on whole pixels, where they are sharp; an even width has its
// middle between two.
double nitida(double posizione, int spessore) {
    return spessore % 2 == 1 ? std::floor(posizione) + 0.5 : std::round(posizione);
}

}  // namespace

SuperficieSchermo::SuperficieSchermo(std::function<plot::SpazioDisegno()> spazio,
                                     std::function<void()> mostra)
    : spazio_(std::move(spazio)), mostra_(std::move(mostra)) {}

void SuperficieSchermo::impostaRapporto(double rapporto) { rapporto_ = rapporto; }

void SuperficieSchermo::prepara(const plot::Riquadro& mondo, double larghezza, double altezza) {
    linee_.clear();
    if (pittore_.isActive()) pittore_.end();
    mondo_ = mondo;
    scalaX_ = larghezza / mondo.larghezza();
    scalaY_ = altezza / mondo.altezza();
    spessore_ = 1;
    const QSize misure(std::max(1, static_cast<int>(std::lround(larghezza))),
                       std::max(1, static_cast<int>(std::lround(altezza))));
    if (immagine_.size() != misure) immagine_ = QImage(misure, QImage::Format_RGB32);
    immagine_.setDevicePixelRatio(1);  // painted pixel by pixel
    immagine_.fill(Qt::white);
    apriPittore();
}

void SuperficieSchermo::apriPittore() {
    if (pittore_.isActive() || immagine_.isNull()) return;
    pittore_.begin(&immagine_);
    pittore_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void SuperficieSchermo::marcaFoglio(const plot::Riquadro& foglio, plot::Colore colore) {
    const QPointF alto = pixel({foglio.xmin, foglio.ymax});
    const QPointF basso = pixel({foglio.xmax, foglio.ymin});
    pittore_.save();
    pittore_.setRenderHint(QPainter::Antialiasing, false);
    pittore_.setPen(QPen(qColore(colore), 1, Qt::DotLine, Qt::FlatCap));
    pittore_.drawRect(QRectF(alto, basso));
    pittore_.restore();
}

void SuperficieSchermo::spessore(int pixel) {
    tracciaLinee();
    spessore_ = pixel;
}

void SuperficieSchermo::poligono(const plot::PoligonoPlot& poligono) {
    tracciaLinee();
    QPolygonF vertici;
    for (int i = 0; i < poligono.nVertici; ++i)
        vertici << pixel(poligono.vertici[static_cast<std::size_t>(i)]);
    pittore_.setPen(qColore(poligono.colore));
    pittore_.setBrush(qColore(poligono.colore));
    pittore_.drawPolygon(vertici);
    pittore_.setBrush(Qt::NoBrush);
}

void SuperficieSchermo::linea(const plot::Tratto& tratto, plot::Colore colore) {
    apriPittore();
    // A zoom leaves most of a drawing outside, at distances that no pixel number can hold.
    const double bordo = mezzoSpessoreCm();
    const auto visibile = plot::ritagliaTratto(tratto, {mondo_.xmin - bordo, mondo_.ymin - bordo,
                                                        mondo_.xmax + bordo, mondo_.ymax + bordo});
    if (!visibile) return;
    constexpr std::size_t blocco = 4096;
    if (colore != colore_ || linee_.size() == blocco) tracciaLinee();
    colore_ = colore;
    QPointF da = pixel(visibile->da);
    QPointF a = pixel(visibile->a);
    if (tratto.da.y == tratto.a.y) {
        da.setY(nitida(da.y(), spessore_));
        a.setY(da.y());
    }
    if (tratto.da.x == tratto.a.x) {
        da.setX(nitida(da.x(), spessore_));
        a.setX(da.x());
    }
    linee_.emplace_back(da, a);
}

void SuperficieSchermo::tracciaLinee() {
    if (linee_.empty()) return;
    pittore_.setPen(pennaSchermo(colore_, spessore_));
    pittore_.drawLines(linee_.data(), static_cast<int>(linee_.size()));
    linee_.clear();
}

void SuperficieSchermo::testo(const plot::TestoSuperficie& testo) {
    apriPittore();
    tracciaLinee();
    const int corpo = std::abs(testo.carattereAlto);
    // No text reaches further than that, whatever its direction; most lie outside of a zoom.
    const double portata = 2.0 * corpo * static_cast<double>(base::numeroCaratteri(testo.testo));
    const QPointF punto = pixel(testo.punto);
    const QRectF vista = QRectF(immagine_.rect()).adjusted(-portata, -portata, portata, portata);
    if (!vista.contains(punto)) return;
    QFont font = fontDisegno(testo.carattere);
    font.setPixelSize(corpo);
    dipingiTesto(pittore_, {punto, font, static_cast<double>(corpo), testo.decimiDiGrado / 10.0,
                            testo.centrato, testo.colore, testo.testo,
                            stiramento(testo.carattere, testo.testo)});
}

void SuperficieSchermo::aggiorna() {
    tracciaLinee();
    if (pittore_.isActive()) pittore_.end();
    immagine_.setDevicePixelRatio(rapporto_);
    mostra_();
}

void SuperficieSchermo::svuota() {
    linee_.clear();
    if (pittore_.isActive()) pittore_.end();
    immagine_ = QImage();
}

QPointF SuperficieSchermo::pixel(plot::Punto punto) const {
    return {(punto.x - mondo_.xmin) * scalaX_, (mondo_.ymax - punto.y) * scalaY_};
}

plot::Punto SuperficieSchermo::puntoDelFoglio(QPointF posizione) const {
    return {mondo_.xmin + posizione.x() * rapporto_ / scalaX_,
            mondo_.ymax - posizione.y() * rapporto_ / scalaY_};
}

double SuperficieSchermo::mezzoSpessoreCm() const {
    constexpr double pixelInPiu = 2;  // smoothing, and the ends of a line
    return (spessore_ + pixelInPiu) / std::min(scalaX_, scalaY_);
}

}  // namespace korven::device
