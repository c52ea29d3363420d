#include "shell/forms/help_strip.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <utility>

#include "base/number_reading.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr int margine = 6;
constexpr int larghezzaMinima = 240;
constexpr int larghezzaComoda = 480;

QString conNota(const QString& nota, const QString& testo) {
    return inRighe(nota.isEmpty() ? testo : nota + QLatin1Char('\n') + testo);
}

}  // namespace

StrisciaAiuto::StrisciaAiuto(const QStringList& testi, std::function<void()> premuto,
                             QWidget* genitore)
    : QLabel(genitore), premuto_(std::move(premuto)) {
    const QString nota = qt(base::letturaPiuLunga());
    for (const QString& testo : testi) testi_ << conNota(nota, testo);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(margine);
    setIndent(0);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    if (premuto_) {
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
    }
    QSizePolicy misura(QSizePolicy::Expanding, QSizePolicy::Fixed);
    misura.setHeightForWidth(true);
    setSizePolicy(misura);
}

void StrisciaAiuto::mostra(const QString& testo, const QString& nota) {
    const QString tutto = conNota(nota, testo);
    if (tutto == text()) return;
    setText(tutto);
    setAccessibleName(tutto);
}

int StrisciaAiuto::altezzaTesto(const QString& testo, int larghezza) const {
    return fontMetrics()
        .boundingRect(0, 0, larghezza, QWIDGETSIZE_MAX, Qt::TextWordWrap | Qt::AlignLeft, testo)
        .height();
}

int StrisciaAiuto::heightForWidth(int larghezza) const {
    const int bordi = 2 * (margine + frameWidth());
    int altezza = std::max(fontMetrics().height(), altezzaTesto(text(), larghezza - bordi));
    for (const QString& testo : testi_)
        altezza = std::max(altezza, altezzaTesto(testo, larghezza - bordi));
    return altezza + bordi;
}

QSize StrisciaAiuto::sizeHint() const { return {larghezzaComoda, heightForWidth(larghezzaComoda)}; }

QSize StrisciaAiuto::minimumSizeHint() const {
    return {larghezzaMinima, fontMetrics().height() + 2 * (margine + frameWidth())};
}

void StrisciaAiuto::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton && premuto_) premuto_();
}

void StrisciaAiuto::keyPressEvent(QKeyEvent* evento) {
    constexpr int tasti[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
    if (std::find(std::begin(tasti), std::end(tasti), evento->key()) == std::end(tasti))
        return QLabel::keyPressEvent(evento);
    premuto_();
}

void StrisciaAiuto::paintEvent(QPaintEvent* evento) {
    QLabel::paintEvent(evento);
    if (!hasFocus()) return;
    QPainter pittore(this);
    QStyleOptionFocusRect cornice;
    cornice.initFrom(this);
    cornice.rect = rect().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &cornice, &pittore, this);
}

}  // namespace korven::shell
