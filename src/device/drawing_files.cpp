#include "device/drawing_files.hpp"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cassert>
#include <cmath>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "device/drawing_extent.hpp"
#include "device/drawing_painter.hpp"
#include "plot/plot_engine.hpp"

namespace korven::device {

namespace {

constexpr double centimetriPerPollice = 2.54;
constexpr double millimetriPerCentimetro = 10;
constexpr int dpiVettoriale = 2540;      // a hundredth of a mm is the unit of PDF and SVG
constexpr double pennaMinimaCm = 0.008;  // what every printer still shows

constexpr double perCentimetro(int dpi) { return dpi / centimetriPerPollice; }

void dipingi(QPainter& painter, const plot::Riquadro& vista, int dpi, double pennaMinima) {
    PittoreDisegno(painter, vista, perCentimetro(dpi), pennaMinima)
        .dipingi(plot::statoPlot.archivio);
}

plot::Riquadro vistaDelDisegno() {
    return vistaDisegno(plot::statoPlot.estensione, plot::statoPlot.archivio);
}

void salva(const std::string& percorso, const QBuffer& buffer) {
    const QByteArray& byte = buffer.data();
    base::scriviFile(percorso, {byte.constData(), static_cast<std::size_t>(byte.size())});
}

// A page about the drawing: A4 if that holds it.
plot::Riquadro pagina(const plot::Riquadro& disegno) {
    constexpr double larghezzaA4 = 21, altezzaA4 = 29.7;
    const double bordoX = std::max(larghezzaA4 - disegno.larghezza(), 0.0) / 2;
    const double bordoY = std::max(altezzaA4 - disegno.altezza(), 0.0) / 2;
    return {disegno.xmin - bordoX, disegno.ymin - bordoY, disegno.xmax + bordoX,
            disegno.ymax + bordoY};
}

}  // namespace

void scriviPdf(const std::string& percorso) {
    const plot::Riquadro vista = pagina(plot::statoPlot.estensione);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter scrittore(&buffer);
        scrittore.setCreator(QStringLiteral("KORVEN 32"));
        scrittore.setResolution(dpiVettoriale);
        const QSizeF misure = QSizeF(vista.larghezza(), vista.altezza()) * millimetriPerCentimetro;
        scrittore.setPageSize(QPageSize(misure, QPageSize::Millimeter, {}, QPageSize::FuzzyMatch));
        scrittore.setPageMargins(QMarginsF());
        QPainter painter(&scrittore);
        dipingi(painter, vista, dpiVettoriale, pennaMinimaCm * perCentimetro(dpiVettoriale));
    }
    salva(percorso, buffer);
}

void scriviSvg(const std::string& percorso) {
    const plot::Riquadro vista = vistaDelDisegno();
    const QSizeF misure = QSizeF(vista.larghezza(), vista.altezza()) * perCentimetro(dpiVettoriale);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QSvgGenerator generatore;
        generatore.setOutputDevice(&buffer);
        generatore.setResolution(dpiVettoriale);
        generatore.setSize(misure.toSize());
        generatore.setViewBox(QRectF(QPointF(), misure));
        generatore.setTitle(QStringLiteral("KORVEN 32"));
        QPainter painter(&generatore);
        dipingi(painter, vista, dpiVettoriale, pennaMinimaCm * perCentimetro(dpiVettoriale));
    }
    salva(percorso, buffer);
}

void scriviPng(const std::string& percorso, int dpi) {
    assert(dpi >= risoluzioneMinima && dpi <= risoluzioneMassima);
    const plot::Riquadro vista = vistaDelDisegno();
    const double scala = perCentimetro(dpi);
    QImage immagine(static_cast<int>(std::ceil(vista.larghezza() * scala)),
                    static_cast<int>(std::ceil(vista.altezza() * scala)), QImage::Format_RGB32);
    if (immagine.isNull())
        throw base::ErroreFile(percorso, 0,
                               base::traduttore("l'immagine è troppo grande per la memoria"));
    immagine.setDotsPerMeterX(static_cast<int>(std::lround(100 * scala)));
    immagine.setDotsPerMeterY(immagine.dotsPerMeterX());
    immagine.fill(Qt::white);
    {
        QPainter painter(&immagine);
        dipingi(painter, vista, dpi, 1);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!immagine.save(&buffer, "PNG"))
        throw base::ErroreFile(percorso, 0, base::traduttore("impossibile scrivere il file"));
    salva(percorso, buffer);
}

}  // namespace korven::device
