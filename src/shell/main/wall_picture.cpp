#include "shell/main/wall_picture.hpp"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

// The drawing is made on a sheet of 160 by 100, the ground at 34, and fills the widget by its
// smaller measure; what lies outside the sheet goes on as sky and ground.
constexpr QRectF foglio(0, 0, 160, 100);
constexpr double terra = 34, oltre = 400;
constexpr double muroSinistra = 86, muroDestra = 91, muroCima = 31, muroPiede = 92;
constexpr double scavo = 72;

struct Strato {
    double tetto;
    QColor colore;
    double passo;  // of the dots
};
const Strato strati[] = {
    {terra, {205, 178, 134}, 5}, {50, {188, 152, 104}, 4}, {68, {161, 124, 84}, 3.2}};

void cielo(QPainter& p) {
    QLinearGradient luce(0, -30, 0, terra);
    luce.setColorAt(0, QColor(150, 190, 222));
    luce.setColorAt(1, QColor(235, 243, 248));
    p.fillRect(QRectF(-oltre, -oltre, 2 * oltre, oltre + terra), luce);
}

// Grains, at places that look thrown and are the same at every painting.
void grani(QPainter& p, QRectF zona, double passo, const QColor& colore) {
    p.setPen(Qt::NoPen);
    p.setBrush(colore);
    int riga = 0;
    for (double y = zona.top() + passo / 2; y < zona.bottom(); y += passo, ++riga)
        for (double x = zona.left() + (riga % 2) * passo / 2; x < zona.right(); x += passo) {
            const double dx = std::sin(x * 12.9 + y * 78.2) * passo * 0.3;
            const double dy = std::cos(x * 39.3 + y * 11.1) * passo * 0.3;
            p.drawEllipse(QPointF(x + dx, y + dy), 0.28, 0.2);
        }
}

void terreno(QPainter& p) {
    for (std::size_t i = 0; i < std::size(strati); ++i) {
        const double tetto = strati[i].tetto;
        const double piede = i + 1 < std::size(strati) ? strati[i + 1].tetto : oltre;
        const QRectF intero(-oltre, tetto, 2 * oltre, piede - tetto);
        p.fillRect(intero, strati[i].colore);
        grani(p, intero.intersected(QRectF(-80, 0, 320, 160)), strati[i].passo,
              strati[i].colore.darker(130));
    }
    p.fillRect(QRectF(-oltre, terra - 0.8, oltre + muroSinistra, 0.8), QColor(96, 140, 72));
}

void fossa(QPainter& p) {
    QLinearGradient luce(0, terra, 0, scavo);
    luce.setColorAt(0, QColor(235, 243, 248));
    luce.setColorAt(1, QColor(214, 224, 230));
    p.fillRect(QRectF(muroDestra, terra - 1, oltre, scavo - terra + 1), luce);
    p.setPen(QPen(QColor(120, 92, 60), 0.7));
    p.drawLine(QPointF(muroDestra, scavo), QPointF(oltre, scavo));
    p.setPen(QPen(QColor(120, 132, 140), 0.35, Qt::DashLine));
    for (const double fase : {46.0, 59.0})
        p.drawLine(QPointF(muroDestra + 1, fase), QPointF(oltre, fase));
}

void tirante(QPainter& p, double testa) {
    const QPointF a(muroDestra + 1.2, testa);
    const QPointF fine(26, testa + (muroDestra - 26) * 0.27);
    const QPointF bulbo = a + (fine - a) * 0.55;
    p.setPen(QPen(QColor(205, 203, 196), 2.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(bulbo, fine);
    p.setPen(QPen(QColor(52, 60, 66), 0.6));
    p.drawLine(a, fine);
    p.setPen(QPen(QColor(52, 60, 66), 0.3));
    p.setBrush(QColor(92, 102, 110));
    p.drawPolygon(QPolygonF({{muroDestra, testa - 1.8},
                             {muroDestra + 1.8, testa - 0.9},
                             {muroDestra + 1.8, testa + 1.3},
                             {muroDestra, testa + 1.8}}));
}

void muro(QPainter& p) {
    QLinearGradient luce(muroSinistra, 0, muroDestra, 0);
    luce.setColorAt(0, QColor(148, 154, 158));
    luce.setColorAt(0.4, QColor(190, 195, 198));
    luce.setColorAt(1, QColor(160, 166, 170));
    p.setPen(QPen(QColor(70, 76, 80), 0.4));
    p.setBrush(luce);
    p.drawRect(QRectF(QPointF(muroSinistra, muroCima), QPointF(muroDestra, muroPiede)));
    p.setBrush(QColor(170, 176, 180));
    p.drawRect(QRectF(muroSinistra - 1.5, muroCima - 3, muroDestra - muroSinistra + 3, 3.6));
}

// The mark of a water table: a triangle on a line.
void falda(QPainter& p, double da, double a, double quota) {
    const QColor acqua(38, 108, 178);
    p.setPen(QPen(acqua, 0.45));
    p.drawLine(QPointF(da, quota), QPointF(a, quota));
    p.setPen(Qt::NoPen);
    p.setBrush(acqua);
    const double x = (std::max(da, -20.0) + a) / 2;
    p.drawPolygon(QPolygonF({{x - 1.6, quota - 2.6}, {x + 1.6, quota - 2.6}, {x, quota - 0.3}}));
}

// The line of the moments beside the wall, as the diagrams of the program show it.
void momenti(QPainter& p) {
    const double x = 124;
    QPainterPath linea(QPointF(x, terra));
    linea.cubicTo(x, 38, x - 9, 39, x - 7, 43);
    linea.cubicTo(x - 4, 47, x + 3, 46, x + 1, 54);
    linea.cubicTo(x - 1, 57, x - 7, 57, x - 4, 59);
    linea.cubicTo(x + 8, 63, x + 22, 68, x + 17, 75);
    linea.cubicTo(x + 12, 82, x - 4, 82, x, muroPiede);
    QPainterPath campo = linea;
    campo.closeSubpath();
    p.fillPath(campo, QColor(176, 40, 46, 46));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(176, 40, 46), 0.6));
    p.drawPath(linea);
    p.setPen(QPen(QColor(60, 66, 70), 0.45));
    p.drawLine(QPointF(x, terra), QPointF(x, muroPiede));
}

void nome(QPainter& p, const QString& sottotitolo) {
    p.setPen(QColor(30, 58, 84));
    QFont carattere = p.font();
    carattere.setPixelSize(12);
    carattere.setBold(true);
    p.setFont(carattere);
    p.drawText(QRectF(6, 3, 120, 15), Qt::AlignLeft | Qt::AlignVCenter, "KORVEN 32");
    carattere.setPixelSize(4);
    carattere.setBold(false);
    p.setFont(carattere);
    p.drawText(QRectF(6.4, 17, 150, 7), Qt::AlignLeft | Qt::AlignVCenter, sottotitolo);
}

}  // namespace

QuadroParatia::QuadroParatia(QWidget* genitore)
    : QWidget(genitore), sottotitolo_(tradotto("Dimensionamento di Paratie e Diaframmi")) {
    setAccessibleName(
        tradotto("Sezione di una paratia tirantata fra monte e valle; un clic apre "
                 "le informazioni sul programma"));
}

void QuadroParatia::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double scala = std::min(width() / foglio.width(), height() / foglio.height());
    p.translate((width() - scala * foglio.width()) / 2, (height() - scala * foglio.height()) / 2);
    p.scale(scala, scala);
    cielo(p);
    terreno(p);
    falda(p, -oltre, muroSinistra, 57);
    fossa(p);
    momenti(p);
    for (const double testa : {43.0, 56.0}) tirante(p, testa);
    muro(p);
    if (titolo_) nome(p, sottotitolo_);
}

void QuadroParatia::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()))
        emit premuta();
}

}  // namespace korven::shell
