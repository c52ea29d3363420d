#include "device/drawing_files.hpp"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cassert>
#include <cmath>

#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "device/dated_pdf.hpp"
#include "device/drawing_extent.hpp"
#include "device/drawing_painter.hpp"
#include "device/file_device.hpp"
#include "device/png_writer.hpp"
#include "device/svg_writer.hpp"
#include "plot/drawing_watch.hpp"
#include "plot/plot_engine.hpp"

namespace korven::device {

namespace {

constexpr double centimetriPerPollice = 2.54;
constexpr double millimetriPerCentimetro = 10;
constexpr int dpiVettoriale = 2540;      // a hundredth of a mm is the unit of PDF and SVG
constexpr double pennaMinimaCm = 0.008;  // what every printer still shows

constexpr double perCentimetro(int dpi) { return dpi / centimetriPerPollice; }

plot::Riquadro vistaDelDisegno() {
    return vistaDisegno(plot::statoPlot.estensione, plot::statoPlot.archivio);
}

// A page about the drawing: the sheet if that holds it.
plot::Riquadro pagina(const plot::Riquadro& disegno, const plot::Foglio& foglio) {
    const double bordoX = std::max(foglio.larghezza - disegno.larghezza(), 0.0) / 2;
    const double bordoY = std::max(foglio.altezza - disegno.altezza(), 0.0) / 2;
    return {disegno.xmin - bordoX, disegno.ymin - bordoY, disegno.xmax + bordoX,
            disegno.ymax + bordoY};
}

void dipingiPdf(QIODevice& dove, const plot::Riquadro& vista) {
    QPdfWriter scrittore(&dove);
    scrittore.setCreator(QStringLiteral("KORVEN 32"));
    scrittore.setResolution(dpiVettoriale);
    const QSizeF misure = QSizeF(vista.larghezza(), vista.altezza()) * millimetriPerCentimetro;
    scrittore.setPageSize(QPageSize(misure, QPageSize::Millimeter, {}, QPageSize::FuzzyMatch));
    scrittore.setPageMargins(QMarginsF());
    QPainter pittore(&scrittore);
    PittoreDisegno disegno(pittore, vista, perCentimetro(dpiVettoriale),
                           pennaMinimaCm * perCentimetro(dpiVettoriale));
    // Qt compresses a page when it ends, which for millions of lines beside the paper would
    // take seconds.
    disegno.limita(vista.ymin, vista.ymax);
    disegno.dipingi(plot::statoPlot.archivio);
}

}  // namespace

void scriviPdf(const std::string& percorso, const plot::Foglio& foglio, const base::Disco& disco) {
    const plot::LavoroDisegno lavoro;
    const plot::Riquadro vista = pagina(plot::statoPlot.estensione, foglio);
    if (haDataVoluta()) {
        QBuffer byte;
        byte.open(QIODevice::WriteOnly);
        dipingiPdf(byte, vista);
        base::scriviFile(percorso, conDataVoluta(byte.data().toStdString()), disco);
        return;
    }
    DispositivoFile file(percorso, disco);
    dipingiPdf(file, vista);
    file.concludi();
}

void scriviSvg(const std::string& percorso, const base::Disco& disco) {
    const plot::LavoroDisegno lavoro;
    ScrittoreSvg(percorso, vistaDelDisegno(), pennaMinimaCm, disco)
        .scrivi(plot::statoPlot.archivio);
}

void scriviPng(const std::string& percorso, int dpi, std::size_t byteFascia,
               const base::Disco& disco) {
    assert(dpi >= risoluzioneMinima && dpi <= risoluzioneMassima);
    const plot::LavoroDisegno lavoro;
    const plot::Riquadro vista = vistaDelDisegno();
    const double scala = perCentimetro(dpi);
    const QSize misure(static_cast<int>(std::ceil(vista.larghezza() * scala)),
                       static_cast<int>(std::ceil(vista.altezza() * scala)));
    const std::size_t byteRiga = sizeof(QRgb) * static_cast<std::size_t>(misure.width());
    const int righe = static_cast<int>(std::clamp<std::size_t>(
        byteFascia / byteRiga, 1, static_cast<std::size_t>(misure.height())));
    QImage fascia(misure.width(), righe, QImage::Format_RGB32);
    if (fascia.isNull())
        throw base::ErroreFile(percorso, 0,
                               base::traduttore("l'immagine è troppo grande per la memoria"));
    // Lines of one pixel have a quick way of their own in Qt, which sets them down a pixel aside
    // where a strip begins.
    const double pennaMinima = righe < misure.height() ? 1.01 : 1;
    ScrittorePng file(percorso, misure, static_cast<int>(std::lround(100 * scala)), disco);
    for (int prima = 0; prima < misure.height(); prima += righe) {
        fascia.fill(Qt::white);
        QPainter pittore(&fascia);
        pittore.translate(0, -prima);
        PittoreDisegno disegno(pittore, vista, scala, pennaMinima);
        disegno.limita(vista.ymax - (prima + righe) / scala, vista.ymax - prima / scala);
        disegno.dipingi(plot::statoPlot.archivio);
        pittore.end();
        file.scrivi(fascia, std::min(righe, misure.height() - prima));
    }
    file.concludi();
}

}  // namespace korven::device
