#include "device/page_printer.hpp"

#include <QPageLayout>
#include <QPen>
#include <QPolygon>
#include <QPrinter>

#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "device/drawing_fonts.hpp"
#include "device/print_outcome.hpp"
#include "device/text_painting.hpp"

namespace korven::device {

namespace {

constexpr double millimetriPerCentimetro = 10;
constexpr double twipPerPollice = 1440;
constexpr double twipPerMillimetro = 56.7;  // 567 to the centimetre, as the measures of pages are
constexpr int pianiAColori = 3;

// The printer is declared before the class that prints on it, and so lives longer.
struct StampanteQtSuPdf {
    StampanteQtSuPdf(const QString& percorso, const QPrinter& pagina)
        : stampante(QPrinter::HighResolution) {
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(percorso);
        stampante.setCreator(QStringLiteral("KORVEN 32"));
        stampante.setPageSize(pagina.pageLayout().pageSize());
        stampante.setPageOrientation(pagina.pageLayout().orientation());
    }
    QPrinter stampante;
};

class StampantePdf : private StampanteQtSuPdf, public StampantePagine {
 public:
    StampantePdf(const QString& percorso, const QPrinter& pagina, const QString& titolo)
        : StampanteQtSuPdf(percorso, pagina), StampantePagine(stampante, titolo) {}
};

}  // namespace

plot::Foglio paginaStampante(const QPrinter& stampante) {
    const QRectF pagina = stampante.pageLayout().fullRect(QPageLayout::Millimeter);
    return {pagina.width() / millimetriPerCentimetro, pagina.height() / millimetriPerCentimetro};
}

StampantePagine::StampantePagine(QPrinter& stampante, const QString& titolo)
    : stampante_(stampante), margini_(stampante) {
    stampante_.setDocName(titolo);
}

StampantePagine::~StampantePagine() {
    if (pittore_.isActive()) {  // a job that an error cut short
        stampante_.abort();
        pittore_.end();
    }
}

plot::MisureStampante StampantePagine::misure() {
    const QPageLayout pagina = stampante_.pageLayout();
    const int dpi = stampante_.resolution();
    const QRectF stampabile = pagina.paintRect(QPageLayout::Millimeter);
    const QRect pixel = pagina.paintRectPixels(dpi);
    const QRectF intera = pagina.fullRect(QPageLayout::Millimeter);
    return {stampabile.width(),
            stampabile.height(),
            pixel.width(),
            pixel.height(),
            intera.width() * twipPerMillimetro,
            intera.height() * twipPerMillimetro,
            twipPerPollice / dpi,
            stampante_.colorMode() == QPrinter::Color ? pianiAColori : 1};
}

void StampantePagine::iniziaPagina() {
    const bool riuscita = pittore_.isActive()
                              ? stampante_.newPage()
                              : conosciuta(stampante_) && pittore_.begin(&stampante_);
    if (!riuscita) fallita();
    pittore_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void StampantePagine::poligono(std::span<const plot::PuntoPagina> vertici, plot::Colore colore) {
    QPolygon poligono;
    for (const plot::PuntoPagina& v : vertici) poligono << QPoint(v.x, v.y);
    pittore_.save();
    pittore_.setPen(qColore(colore));
    pittore_.setBrush(qColore(colore));
    pittore_.drawPolygon(poligono);
    pittore_.restore();
}

void StampantePagine::penna(plot::Colore colore, int spessore) {
    pittore_.setPen(QPen(qColore(colore), spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void StampantePagine::linea(plot::PuntoPagina da, plot::PuntoPagina a) {
    pittore_.drawLine(da.x, da.y, a.x, a.y);
}

void StampantePagine::carattere(const plot::CaratterePagina& carattere) {
    carattere_ = carattere.carattere;
    font_ = fontDisegno(carattere.carattere);
    corpo_ = corpoPerRiga(font_, carattere.altezzaRiga);
    constexpr double decimi = 10;
    gradi_ = carattere.decimiDiGrado / decimi;
}

void StampantePagine::testo(plot::PuntoPagina punto, std::string_view testo, bool centrato,
                            plot::Colore colore) {
    dipingiTesto(pittore_, {QPointF(punto.x, punto.y), font_, corpo_, gradi_, centrato, colore,
                            testo, stiramento(carattere_, testo)});
}

void StampantePagine::fineStampa() {
    const bool riuscita = pittore_.end();
    if (!riuscita || !consegnata(stampante_)) fallita();
}

void StampantePagine::fallita() const {
    throw base::ErroreFile(destinazionePagine(stampante_), 0,
                           base::traduttore("la stampa non è riuscita"));
}

std::unique_ptr<plot::Stampante> stampanteSuPdf(const QString& percorso, const QPrinter& pagina,
                                                const QString& titolo) {
    return std::make_unique<StampantePdf>(percorso, pagina, titolo);
}

}  // namespace korven::device
