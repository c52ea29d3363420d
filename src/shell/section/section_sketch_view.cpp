#include "shell/section/section_sketch_view.hpp"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

using drawings::Segno;

// On a white sheet under any theme, as drawings are.
const QColor foglio(255, 255, 255), cornice(200, 204, 208), inchiostro(40, 48, 56);
const QColor calcestruzzo(226, 226, 220), acciaio(92, 118, 146), grigio(128, 136, 144);

QPen penna(const QColor& colore, double spessore, Qt::PenStyle stile = Qt::SolidLine) {
    return {colore, spessore, stile, Qt::FlatCap, Qt::MiterJoin};
}

void disponi(QPainter& pittore, Segno segno) {
    constexpr double contorno = 1.3, sottile = 1;
    pittore.setBrush(Qt::NoBrush);
    switch (segno) {
        case Segno::calcestruzzo:
            pittore.setPen(penna(inchiostro, contorno));
            return pittore.setBrush(calcestruzzo);
        case Segno::acciaio:
            pittore.setPen(penna(inchiostro, sottile));
            return pittore.setBrush(acciaio);
        case Segno::assente:
            return pittore.setPen(penna(grigio, sottile, Qt::DotLine));
        case Segno::asse:
            return pittore.setPen(penna(grigio, sottile, Qt::DashDotLine));
        case Segno::tratto:
            return pittore.setPen(penna(inchiostro, sottile));
    }
}

}  // namespace

VistaSchizzo::VistaSchizzo(std::function<void(std::size_t)> scelto, QWidget* genitore)
    : QWidget(genitore),
      scelto_(std::move(scelto)),
      monte_(tradotto("LATO MONTE")),
      valle_(tradotto("LATO VALLE")) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleDescription(tradotto("Le misure stanno nei campi accanto"));
    presentaFigura(*this);
}

void VistaSchizzo::mostra(drawings::Schizzo schizzo) {
    schizzo_ = std::move(schizzo);
    update();
}

void VistaSchizzo::evidenzia(std::optional<std::size_t> campo) {
    if (campo == evidenziato_) return;
    evidenziato_ = campo;
    update();
}

double VistaSchizzo::scala() const {
    return std::min((width() - 2) / drawings::larghezzaSchizzo,
                    (height() - 2) / drawings::altezzaSchizzo);
}

QPointF VistaSchizzo::sulWidget(plot::Punto punto) const {
    return {width() / 2.0 + (punto.x - drawings::larghezzaSchizzo / 2) * scala(),
            height() / 2.0 - (punto.y - drawings::altezzaSchizzo / 2) * scala()};
}

QFont VistaSchizzo::carattere(bool grassetto) const {
    QFont fatto = font();
    fatto.setPixelSize(std::max(1, qRound(drawings::corpoSchizzo * scala())));
    fatto.setBold(grassetto);
    return fatto;
}

QRectF VistaSchizzo::postoTesto(const drawings::QuotaSchizzo& quota) const {
    const QFontMetricsF misure(carattere(true));
    const double larghezza = misure.horizontalAdvance(qt(quota.scritta));
    const QPointF punto = sulWidget(quota.testo);
    const double arretrato = quota.appoggio == drawings::Appoggio::inizio   ? 0
                             : quota.appoggio == drawings::Appoggio::centro ? larghezza / 2
                                                                            : larghezza;
    return {punto.x() - arretrato, punto.y() - misure.ascent(), larghezza, misure.height()};
}

void VistaSchizzo::dipingiSezione(QPainter& pittore) const {
    for (const auto& linea : schizzo_.linee) {
        QPolygonF punti;
        for (const auto& punto : linea.punti) punti << sulWidget(punto);
        disponi(pittore, linea.segno);
        if (linea.chiusa)
            pittore.drawPolygon(punti);
        else
            pittore.drawPolyline(punti);
    }
    for (const auto& cerchio : schizzo_.cerchi) {
        disponi(pittore, cerchio.segno);
        const double raggio = cerchio.raggio * scala();
        pittore.drawEllipse(sulWidget(cerchio.centro), raggio, raggio);
    }
}

void VistaSchizzo::dipingiQuota(QPainter& pittore, const drawings::QuotaSchizzo& quota) const {
    const bool scelta = quota.campo == evidenziato_;
    const QColor colore = scelta ? QColor(196, 60, 20) : inchiostro;
    pittore.setPen(penna(scelta ? colore : grigio, scelta ? 2 : 1));
    for (const auto& linea : quota.linee) pittore.drawLine(sulWidget(linea.da), sulWidget(linea.a));
    pittore.setPen(penna(colore, scelta ? 2.4 : 1.6));
    const double mezzoTratto = 1.2 * scala();
    for (const auto& estremo : quota.estremi) {
        const QPointF p = sulWidget(estremo), braccio(mezzoTratto, -mezzoTratto);
        pittore.drawLine(p - braccio, p + braccio);
    }
    const QFont scritto = carattere(scelta);
    const double larghezza = QFontMetricsF(scritto).horizontalAdvance(qt(quota.scritta));
    const QRectF posto = postoTesto(quota);
    const double x = quota.appoggio == drawings::Appoggio::inizio ? posto.left()
                     : quota.appoggio == drawings::Appoggio::centro
                         ? posto.center().x() - larghezza / 2
                         : posto.right() - larghezza;
    pittore.setFont(scritto);
    pittore.drawText(QPointF(x, sulWidget(quota.testo).y()), qt(quota.scritta));
}

void VistaSchizzo::dipingiLati(QPainter& pittore) const {
    pittore.setFont(carattere(false));
    pittore.setPen(grigio);
    const auto lato = [&](double x, const QString& nome) {
        pittore.save();
        pittore.translate(sulWidget({x, drawings::altezzaSchizzo / 2}));
        pittore.rotate(-90);
        const double meta = drawings::altezzaSchizzo / 2 * scala();
        pittore.drawText(QRectF(-meta, -meta, 2 * meta, 2 * meta), Qt::AlignCenter, nome);
        pittore.restore();
    };
    constexpr double dalBordo = 4;
    lato(dalBordo, monte_);
    lato(drawings::larghezzaSchizzo - dalBordo, valle_);
}

void VistaSchizzo::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    pittore.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    pittore.setPen(penna(cornice, 1));
    pittore.setBrush(foglio);
    pittore.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    dipingiLati(pittore);
    dipingiSezione(pittore);
    // The one in colour above the others.
    for (const auto& quota : schizzo_.quote)
        if (quota.campo != evidenziato_) dipingiQuota(pittore, quota);
    for (const auto& quota : schizzo_.quote)
        if (quota.campo == evidenziato_) dipingiQuota(pittore, quota);
}

void VistaSchizzo::mousePressEvent(QMouseEvent* evento) {
    const auto colpita =
        std::find_if(schizzo_.quote.begin(), schizzo_.quote.end(), [&](const auto& quota) {
            return postoTesto(quota).adjusted(-3, -3, 3, 3).contains(evento->position());
        });
    if (colpita != schizzo_.quote.end()) scelto_(colpita->campo);
}

}  // namespace korven::shell
