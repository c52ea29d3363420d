#include "shell/panels/hatch_picture.hpp"

#include <QPainter>

#include "device/text_painting.hpp"
#include "drawings/hatch_drawing.hpp"

namespace korven::shell {

namespace {

constexpr double pixelPerCentimetro = 48;
const QColor foglio(255, 255, 255), cornice(128, 136, 144);

}  // namespace

QPixmap immagineCampitura(double codice, plot::Colore colore, QSize misura, qreal fattore) {
    QPixmap immagine(misura * fattore);
    immagine.setDevicePixelRatio(fattore);
    immagine.fill(foglio);
    QPainter pittore(&immagine);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(QPen(device::qColore(colore), 1, Qt::SolidLine, Qt::RoundCap));
    const double alto = misura.height() / pixelPerCentimetro;
    const auto punto = [alto](plot::Punto p) {
        return QPointF(p.x, alto - p.y) * pixelPerCentimetro;
    };
    drawings::perOgniTratto(codice, {0, 0, misura.width() / pixelPerCentimetro, alto},
                            [&](const plot::Tratto& tratto) {
                                if (tratto.da == tratto.a)
                                    pittore.drawPoint(punto(tratto.da));
                                else
                                    pittore.drawLine(punto(tratto.da), punto(tratto.a));
                            });
    pittore.setPen(cornice);
    pittore.setRenderHint(QPainter::Antialiasing, false);
    pittore.drawRect(0, 0, misura.width() - 1, misura.height() - 1);
    return immagine;
}

}  // namespace korven::shell
