#include "device/document_painter.hpp"

#include <QPen>

#include "device/drawing_fonts.hpp"
#include "device/drawing_painter.hpp"
#include "device/qt_text.hpp"
#include "device/text_painting.hpp"
#include "plot/drawing_aside.hpp"

namespace korven::device {

namespace {

using document::puntiPerCentimetro;

constexpr double pennaMinima = 0.008 * puntiPerCentimetro;  // what every printer still shows

void scrivi(const document::Scritta& scritta, CarattereRelazione& carattere, PennaTesti& penna) {
    penna.scrivi({QPointF(scritta.x, scritta.y), carattere.font, scritta.carattere.corpo, 0, false,
                  document::colore(scritta.tinta), scritta.testo, 1, &carattere.glifi});
}

QColor qColore(document::Tinta tinta) { return device::qColore(document::colore(tinta)); }

}  // namespace

void PittorePagine::dipingi(const document::Pagina& pagina) {
    pittore_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const auto& f : pagina.fondi)
        pittore_.fillRect(QRectF(f.x, f.y, f.larghezza, f.altezza), qColore(f.tinta));
    for (const auto& f : pagina.filetti) {
        pittore_.setPen(QPen(qColore(f.tinta), f.spessore, Qt::SolidLine, Qt::FlatCap));
        pittore_.drawLine(QPointF(f.x1, f.y1), QPointF(f.x2, f.y2));
    }
    for (const auto& disegno : pagina.disegni) disegna(disegno);
    PennaTesti penna(pittore_);
    for (const auto& s : pagina.scritte) scrivi(s, caratteri_.carattere(s.carattere), penna);
}

void PittorePagine::disegna(const document::Disegno& disegno) {
    static const MetricaQt metrica;
    const document::Figura& figura = *disegno.figura;
    const plot::DisegnoAParte plotter;
    plot::statoPlot.metrica = &metrica;
    plot::plotApri(0, 0, figura.larghezza, disegno.altezza);
    if (disegno.altezza < figura.altezza)
        figura.disegnaBassa(disegno.altezza);
    else
        figura.disegna();
    plot::plotMuovi(0, 0, plot::fineDisegno);

    // The plotter shifts all drawings by the margins of its configuration.
    const double dx = plot::statoPlot.scostamentoX, dy = plot::statoPlot.scostamentoY;
    pittore_.save();
    pittore_.translate(disegno.x, disegno.y);
    PittoreDisegno(pittore_, {dx, -dy, figura.larghezza + dx, disegno.altezza - dy},
                   puntiPerCentimetro * disegno.scala, pennaMinima)
        .dipingi(plot::statoPlot.archivio);
    pittore_.restore();
}

}  // namespace korven::device
