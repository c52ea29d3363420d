#include "shell/main/flags.hpp"

#include <QPainter>
#include <vector>

namespace korven::shell {

namespace {

struct Fascia {
    QColor colore;
    double parte;  // of the whole
};

// Bands beside each other, or one below the other.
void fasce(QPainter& pittore, QRectF foglio, bool verticali, const std::vector<Fascia>& tutte) {
    double inizio = 0;
    for (const auto& [colore, parte] : tutte) {
        const QRectF fascia = verticali
                                  ? QRectF(foglio.left() + inizio * foglio.width(), foglio.top(),
                                           parte * foglio.width(), foglio.height())
                                  : QRectF(foglio.left(), foglio.top() + inizio * foglio.height(),
                                           foglio.width(), parte * foglio.height());
        pittore.fillRect(fascia, colore);
        inizio += parte;
    }
}

void croce(QPainter& pittore, QRectF f, const QColor& colore, double spessore) {
    pittore.setPen(QPen(colore, spessore * f.height(), Qt::SolidLine, Qt::FlatCap));
    pittore.drawLine(QPointF(f.center().x(), f.top()), QPointF(f.center().x(), f.bottom()));
    pittore.drawLine(QPointF(f.left(), f.center().y()), QPointF(f.right(), f.center().y()));
}

void diagonali(QPainter& pittore, QRectF f, const QColor& colore, double spessore) {
    pittore.setPen(QPen(colore, spessore * f.height(), Qt::SolidLine, Qt::FlatCap));
    pittore.drawLine(f.topLeft(), f.bottomRight());
    pittore.drawLine(f.bottomLeft(), f.topRight());
}

void britannica(QPainter& pittore, QRectF f) {
    const QColor rosso(200, 16, 46);
    pittore.fillRect(f, QColor(1, 33, 105));
    diagonali(pittore, f, Qt::white, 0.2);
    diagonali(pittore, f, rosso, 0.07);
    croce(pittore, f, Qt::white, 0.34);
    croce(pittore, f, rosso, 0.2);
}

void dipingi(int codice, QPainter& p, QRectF f) {
    constexpr double terzo = 1.0 / 3;
    switch (codice) {
        case 1:
            return fasce(p, f, true,
                         {{{0, 140, 69}, terzo}, {Qt::white, terzo}, {{205, 33, 42}, terzo}});
        case 2:
            return fasce(p, f, false,
                         {{Qt::black, terzo}, {{221, 0, 0}, terzo}, {{255, 204, 0}, terzo}});
        case 3:
            return fasce(p, f, true,
                         {{{0, 38, 84}, terzo}, {Qt::white, terzo}, {{206, 17, 38}, terzo}});
        case 4:
            return fasce(p, f, false,
                         {{{170, 21, 27}, 0.25}, {{241, 191, 0}, 0.5}, {{170, 21, 27}, 0.25}});
        case 5:
            return britannica(p, f);
        default:
            return fasce(p, f, true, {{{0, 102, 0}, 0.4}, {{255, 0, 0}, 0.6}});
    }
}

}  // namespace

QPixmap bandiera(int codice, QSize misura, qreal densita) {
    QPixmap immagine(misura * densita);
    immagine.setDevicePixelRatio(densita);
    immagine.fill(Qt::transparent);
    QPainter pittore(&immagine);
    pittore.setRenderHint(QPainter::Antialiasing);
    const QRectF foglio(QPointF(0, 0), QSizeF(misura));
    pittore.setClipRect(foglio);
    dipingi(codice, pittore, foglio);
    pittore.setPen(QPen(QColor(0, 0, 0, 90), 1));
    pittore.setBrush(Qt::NoBrush);
    pittore.drawRect(foglio.adjusted(0.5, 0.5, -0.5, -0.5));
    return immagine;
}

}  // namespace korven::shell
