#include "shell/annex/document_view.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

#include "device/document_painter.hpp"
#include "plot/plot_engine.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr double puntiPerPollice = 72;
constexpr double intorno = 12;                              // about a page [px]
constexpr double minimo = 20, massimo = 400, scatto = 1.2;  // [%]

// A page is painted while something else may draw or be stopped: what stops that must not stop it.
class SenzaSorveglia {
 public:
    SenzaSorveglia() : tenuta_(std::exchange(plot::statoPlot.sorveglia, nullptr)) {}
    SenzaSorveglia(const SenzaSorveglia&) = delete;
    SenzaSorveglia& operator=(const SenzaSorveglia&) = delete;
    ~SenzaSorveglia() { plot::statoPlot.sorveglia = tenuta_; }

 private:
    plot::SorvegliaDisegno* tenuta_;
};

}  // namespace

VistaDocumento::VistaDocumento(QWidget* padre) : QAbstractScrollArea(padre) {
    setObjectName(QStringLiteral("anteprima"));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tradotto("Anteprima"));
    presentaFigura(*this);
    setFrameShape(QFrame::StyledPanel);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
}

void VistaDocumento::mostra(document::Impaginato impaginato) {
    const int prima = pagina();
    impaginato_ = std::move(impaginato);
    annunciata_ = -1;  // also that there is none any more is announced
    adatta();
    vaiA(std::clamp(prima, std::min(1, pagine()), std::max(1, pagine())));
    annuncia();
    viewport()->update();
}

double VistaDocumento::larga() const { return impaginato_.formato.larghezza * scala_; }

// From the upper end of a page to that of the next.
double VistaDocumento::passo() const { return impaginato_.formato.altezza * scala_ + intorno; }

// On the viewport.
QRectF VistaDocumento::posto(int pagina) const {
    const double mezzo = std::max((viewport()->width() - larga()) / 2, intorno);
    return {mezzo - horizontalScrollBar()->value(),
            intorno + (pagina - 1) * passo() - verticalScrollBar()->value(), larga(),
            passo() - intorno};
}

int VistaDocumento::pagina() const {
    if (pagine() == 0) return 0;
    const double centro = verticalScrollBar()->value() + viewport()->height() / 2.0 - intorno;
    return std::clamp(static_cast<int>(std::floor(centro / passo())) + 1, 1, pagine());
}

void VistaDocumento::vaiA(int pagina) {
    if (pagine() == 0) return;
    const int quale = std::clamp(pagina, 1, pagine());
    verticalScrollBar()->setValue(static_cast<int>(std::lround((quale - 1) * passo())));
}

void VistaDocumento::adattaPagina() {
    modo_ = Modo::pagina;
    adatta();
}

void VistaDocumento::adattaLarghezza() {
    modo_ = Modo::larghezza;
    adatta();
}

void VistaDocumento::ingrandisci(double percento) {
    modo_ = Modo::fisso;
    scala(std::clamp(percento, minimo, massimo) / 100 * logicalDpiX() / puntiPerPollice);
}

double VistaDocumento::percento() const { return 100 * scala_ * puntiPerPollice / logicalDpiX(); }

void VistaDocumento::adatta() {
    const document::Formato& f = impaginato_.formato;
    // The scroll bar counts whether it is there or not, or it would come and go.
    const double barra =
        verticalScrollBar()->isVisible() ? 0 : verticalScrollBar()->sizeHint().width();
    const double perLarghezza = (viewport()->width() - barra - 2 * intorno) / f.larghezza;
    const double perAltezza = (viewport()->height() - 2 * intorno) / f.altezza;
    constexpr double minima = 0.05;
    if (modo_ == Modo::larghezza) return scala(std::max(perLarghezza, minima));
    if (modo_ == Modo::pagina) return scala(std::max(std::min(perLarghezza, perAltezza), minima));
    scala(scala_);
}

// The place that is looked at stays in the middle.
void VistaDocumento::scala(double pixelPerPunto) {
    const double centro =
        (verticalScrollBar()->value() + viewport()->height() / 2.0 - intorno) / passo();
    scala_ = pixelPerPunto;
    dipinte_.clear();
    disponi();
    verticalScrollBar()->setValue(
        static_cast<int>(std::lround(centro * passo() + intorno - viewport()->height() / 2.0)));
    viewport()->update();
}

void VistaDocumento::disponi() {
    const double alta = intorno + pagine() * passo();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(
        0, std::max(0, static_cast<int>(std::ceil(alta - viewport()->height()))));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(
        0, std::max(0, static_cast<int>(std::ceil(larga() + 2 * intorno - viewport()->width()))));
}

const QPixmap& VistaDocumento::immagine(int pagina) {
    const auto trovata = dipinte_.find(pagina);
    if (trovata != dipinte_.end()) return trovata->second;
    const double rapporto = devicePixelRatioF();
    QPixmap foglio(QSizeF(larga() * rapporto, (passo() - intorno) * rapporto).toSize());
    foglio.setDevicePixelRatio(rapporto);
    foglio.fill(Qt::white);
    QPainter pittore(&foglio);
    pittore.scale(scala_, scala_);
    try {
        const SenzaSorveglia sola;
        device::PittorePagine(pittore, caratteri_)
            .dipingi(impaginato_.pagine[static_cast<std::size_t>(pagina) - 1]);
    } catch (const std::exception& errore) {
        // The pens can't be read: what was painted stays, and the page says why there is no more.
        pittore.resetTransform();
        pittore.setPen(Qt::black);
        pittore.drawText(QRectF(0, 0, larga(), 60), Qt::AlignCenter | Qt::TextWordWrap,
                         qt(errore.what()));
    }
    pittore.end();
    return dipinte_[pagina] = foglio;
}

void VistaDocumento::paintEvent(QPaintEvent*) {
    QPainter pittore(viewport());
    const QRectF visibile = viewport()->rect();
    for (int i = 1; i <= pagine(); ++i) {
        const QRectF dove = posto(i);
        if (!dove.intersects(visibile)) {
            dipinte_.erase(i);
            continue;
        }
        pittore.drawPixmap(dove.topLeft(), immagine(i));
        pittore.setPen(palette().color(QPalette::Dark));
        pittore.drawRect(dove);
    }
    if (!hasFocus()) return;
    pittore.setPen(QPen(palette().color(QPalette::Highlight), 2));
    pittore.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

void VistaDocumento::resizeEvent(QResizeEvent*) {
    adatta();
    annuncia();
}

void VistaDocumento::scrollContentsBy(int, int) {
    annuncia();
    viewport()->update();
}

void VistaDocumento::annuncia() {
    if (pagina() == annunciata_) return;
    annunciata_ = pagina();
    descrivi();
    emit girata(annunciata_);
}

// What is on the page, for those who do not see it.
void VistaDocumento::descrivi() {
    if (annunciata_ == 0) return setAccessibleDescription({});
    const document::Pagina& pagina = impaginato_.pagine[static_cast<std::size_t>(annunciata_) - 1];
    QString testo = tradotto("pagina") + QStringLiteral(" %1 / %2").arg(annunciata_).arg(pagine());
    for (const auto& disegno : pagina.disegni)
        testo += QStringLiteral(". ") + qt(disegno.figura->didascalia) + QStringLiteral(". ") +
                 qt(disegno.figura->descrizione);
    double riga = -1;
    for (const auto& scritta : pagina.scritte) {
        testo += scritta.y == riga ? QStringLiteral("; ") : QStringLiteral("\n");
        testo += qt(scritta.testo);
        riga = scritta.y;
    }
    setAccessibleDescription(testo);
}

void VistaDocumento::cambia(int scatti) {
    ingrandisci(percento() * std::pow(scatto, scatti));
    emit ingrandita();
}

void VistaDocumento::keyPressEvent(QKeyEvent* evento) {
    const bool conCtrl = evento->modifiers().testFlag(Qt::ControlModifier);
    switch (evento->key()) {
        case Qt::Key_PageUp:
            return vaiA(pagina() - 1);
        case Qt::Key_PageDown:
            return vaiA(pagina() + 1);
        case Qt::Key_Home:
            return vaiA(1);
        case Qt::Key_End:
            return vaiA(pagine());
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            if (conCtrl) return cambia(1);
            break;
        case Qt::Key_Minus:
            if (conCtrl) return cambia(-1);
            break;
        default:
            break;
    }
    QAbstractScrollArea::keyPressEvent(evento);
}

void VistaDocumento::wheelEvent(QWheelEvent* evento) {
    if (!evento->modifiers().testFlag(Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(evento);
    if (evento->angleDelta().y() != 0) cambia(evento->angleDelta().y() > 0 ? 1 : -1);
    evento->accept();
}

void VistaDocumento::focusInEvent(QFocusEvent* evento) {
    QAbstractScrollArea::focusInEvent(evento);
    viewport()->update();
}

void VistaDocumento::focusOutEvent(QFocusEvent* evento) {
    QAbstractScrollArea::focusOutEvent(evento);
    viewport()->update();
}

}  // namespace korven::shell
