#include "shell/results/curves_view.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/axis_steps.hpp"
#include "device/scene_painter.hpp"
#include "device/scene_palette.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

using scene::Ruolo;
using tables::CurvaMostrata;

constexpr double fra = 14;  // between two panels [px]

QColor colore(Ruolo ruolo, const QPalette& colori) {
    return device::qColore({ruolo}, device::tavolozza(colori));
}

double passoProfondita(double z) {
    for (const double passo : {0.5, 1.0, 2.0, 5.0, 10.0, 20.0})
        if (z / passo <= 10) return passo;
    return z / 5;
}

}  // namespace

VistaCurve::VistaCurve(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("curve"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tradotto("Curve"));
    presentaFigura(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void VistaCurve::mostra(tables::CurveMostrate curve, double scavo) {
    const double z = curve_.z.empty() ? -1 : curve_.z[nodo_];
    curve_ = std::move(curve);
    scavo_ = scavo;
    leggi(z < 0 ? curve_.z.size() / 2 : nodoVicino(curve_, z));
    update();
}

QString VistaCurve::letto() const {
    return curve_.z.empty() ? QString() : qt(lettura(curve_, nodo_));
}

void VistaCurve::leggi(std::size_t nodo) {
    nodo_ = curve_.z.empty() ? 0 : std::min(nodo, curve_.z.size() - 1);
    const QString testo = curve_.z.empty() ? qt(curve_.perche) : letto();
    setAccessibleDescription(qt(curve_.titolo) + QStringLiteral(". ") + testo + '\n' +
                             tradotto("I valori stanno nelle tabelle di Risultati (Ctrl+R)"));
    emit letta(testo);
    update();
}

// What lies under the titles and above the numbers, right of the depths.
QRectF VistaCurve::quadro() const {
    const double riga = fontMetrics().height();
    const double sinistra = fontMetrics().horizontalAdvance(QStringLiteral("000.0")) + 10;
    return {sinistra, 2 * riga + 8, width() - sinistra - 8, height() - 4 * riga - 20};
}

double VistaCurve::profondita() const { return std::max(curve_.z.back(), 1e-9); }

double VistaCurve::y(double z) const {
    return quadro().top() + quadro().height() * z / profondita();
}

void VistaCurve::asseProfondita(QPainter& p) const {
    const double passo = passoProfondita(profondita());
    const double riga = fontMetrics().height();
    for (double z = 0; z <= profondita() + 1e-9; z += passo) {
        p.setPen(colore(Ruolo::griglia, palette()));
        p.drawLine(QPointF(quadro().left(), y(z)), QPointF(quadro().right(), y(z)));
        p.setPen(colore(Ruolo::testoTenue, palette()));
        p.drawText(QRectF(0, y(z) - riga / 2, quadro().left() - 6, riga),
                   Qt::AlignRight | Qt::AlignVCenter, qt(base::numeroAsse(z, passo)));
    }
    if (scavo_ > 0 && scavo_ <= profondita()) {
        p.setPen(QPen(colore(Ruolo::terreno, palette()), 1.4, Qt::DashLine));
        p.drawLine(QPointF(quadro().left(), y(scavo_)), QPointF(quadro().right(), y(scavo_)));
    }
}

void VistaCurve::pannello(QPainter& p, const CurvaMostrata& curva, const QRectF& dove) const {
    const auto x = [&](double conservato) {
        const double v = project::mostrato(*curva.unita, conservato);
        return dove.left() + dove.width() * (v - curva.da) / (curva.a - curva.da);
    };
    const double riga = fontMetrics().height();
    const auto scrivi = [&](const QRectF& rettangolo, Ruolo ruolo, const QString& testo) {
        p.setPen(colore(ruolo, palette()));
        p.drawText(
            rettangolo, Qt::AlignHCenter | Qt::AlignVCenter,
            fontMetrics().elidedText(testo, Qt::ElideRight, static_cast<int>(rettangolo.width())));
    };
    scrivi({dove.left(), 2, dove.width(), riga}, Ruolo::testo, qt(curva.testa.testa()));

    QPolygonF andata, ritorno;
    for (std::size_t i = 0; i < curve_.z.size(); ++i) {
        const double z = y(curve_.z[i]);
        andata << QPointF(x(curva.massimo[i]), z) << QPointF(x(curva.massimoSotto[i]), z);
        ritorno << QPointF(x(curva.minimo[i]), z) << QPointF(x(curva.minimoSotto[i]), z);
    }
    const bool fascia = curve_.fase == 0;
    QPolygonF area = andata;
    if (fascia)
        std::reverse_copy(ritorno.begin(), ritorno.end(), std::back_inserter(area));
    else
        area << QPointF(x(0), y(curve_.z.back())) << QPointF(x(0), y(0));
    p.setPen(Qt::NoPen);
    p.setBrush(colore(Ruolo::fondoCurva, palette()));
    p.drawPolygon(area);
    p.setBrush(Qt::NoBrush);
    p.setPen(colore(Ruolo::asse, palette()));
    p.drawRect(dove);
    p.drawLine(QPointF(x(0), dove.top()), QPointF(x(0), dove.bottom()));
    p.setPen(QPen(colore(Ruolo::curva, palette()), 1.8));
    p.drawPolyline(andata);
    if (fascia) p.drawPolyline(ritorno);

    // The ends of the axis; the wall's own line is 0.
    for (const auto& [v, allineato] :
         {std::pair{curva.da, Qt::AlignLeft}, std::pair{curva.a, Qt::AlignRight}}) {
        p.setPen(colore(Ruolo::testoTenue, palette()));
        p.drawText(QRectF(dove.left(), dove.bottom() + 2, dove.width(), riga), allineato,
                   qt(base::numeroAsse(v, curva.passo)));
    }
    // What is read.
    const double z = y(curve_.z[nodo_]);
    p.setPen(QPen(colore(Ruolo::evidenza, palette()), 1));
    p.drawLine(QPointF(dove.left(), z), QPointF(dove.right(), z));
    p.setBrush(colore(Ruolo::evidenza, palette()));
    for (const double v : {curva.massimo[nodo_], curva.massimoSotto[nodo_]})
        p.drawEllipse(QPointF(x(v), z), 3, 3);
    if (fascia)
        for (const double v : {curva.minimo[nodo_], curva.minimoSotto[nodo_]})
            p.drawEllipse(QPointF(x(v), z), 3, 3);
    p.setBrush(Qt::NoBrush);
    scrivi({dove.left(), riga + 4, dove.width(), riga}, Ruolo::evidenza, qt(valore(curva, nodo_)));
}

void VistaCurve::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), colore(Ruolo::sfondo, palette()));
    if (curve_.z.empty()) {
        p.setPen(colore(Ruolo::avviso, palette()));
        p.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                   qt(curve_.perche));
    } else {
        asseProfondita(p);
        const QRectF tutto = quadro();
        const double largo = (tutto.width() - 3 * fra) / 4;
        for (std::size_t i = 0; i < curve_.curve.size(); ++i)
            pannello(p, curve_.curve[i],
                     {tutto.left() + static_cast<double>(i) * (largo + fra), tutto.top(), largo,
                      tutto.height()});
        p.setPen(colore(Ruolo::testo, palette()));
        p.drawText(
            QRectF(0, height() - fontMetrics().height() - 4, width(), fontMetrics().height()),
            Qt::AlignCenter,
            fontMetrics().elidedText(qt(curve_.titolo) + QStringLiteral("  ·  z [m]  ·  ") +
                                         tradotto("pressioni e spostamenti: + verso lo scavo"),
                                     Qt::ElideRight, width()));
    }
    if (!hasFocus()) return;
    p.setPen(QPen(palette().color(QPalette::Highlight), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(rect().adjusted(1, 1, -1, -1));
}

void VistaCurve::mouseMoveEvent(QMouseEvent* evento) {
    if (curve_.z.empty()) return;
    const double z = (evento->position().y() - quadro().top()) / quadro().height() * profondita();
    leggi(nodoVicino(curve_, z));
}

void VistaCurve::mousePressEvent(QMouseEvent* evento) { mouseMoveEvent(evento); }

void VistaCurve::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
        case Qt::Key_Up:
            return leggi(nodo_ == 0 ? 0 : nodo_ - 1);
        case Qt::Key_Down:
            return leggi(nodo_ + 1);
        case Qt::Key_Home:
            return leggi(0);
        case Qt::Key_End:
            return leggi(curve_.z.size());
        case Qt::Key_PageUp:
            emit faseChiesta(-1);
            return;
        case Qt::Key_PageDown:
            emit faseChiesta(1);
            return;
        default:
            QWidget::keyPressEvent(evento);
    }
}

void VistaCurve::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    update();
}

void VistaCurve::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    update();
}

}  // namespace korven::shell
