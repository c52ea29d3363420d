#include "shell/remarks/remark_delegate.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

namespace korven::shell {

namespace {

constexpr int margine = 6;
constexpr int segno = 4;                   // width of the bar at the left
constexpr QColor rosso(0xB0, 0x10, 0x10);  // of what prevents a run, and of a danger
constexpr QColor ambra(0xC0, 0x80, 0x00);  // of what is to be looked at

QFont grassetto(QFont carattere) {
    carattere.setBold(true);
    return carattere;
}

QRect dentro(const QRect& voce) {
    return voce.adjusted(2 * margine + segno, margine, -margine, -margine);
}

}  // namespace

void DelegatoOsservazioni::paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
                                 const QModelIndex& indice) const {
    QStyleOptionViewItem sfondo = opzioni;
    initStyleOption(&sfondo, indice);
    const QString testo = sfondo.text;
    sfondo.text.clear();
    const QWidget* lista = opzioni.widget;
    lista->style()->drawControl(QStyle::CE_ItemViewItem, &sfondo, pittore, lista);

    const bool grave = indice.data(datoGrave).toBool();
    const bool scelta = sfondo.state & QStyle::State_Selected;
    pittore->save();
    const QRect voce = opzioni.rect;
    pittore->fillRect(voce.left() + margine, voce.top() + margine, segno,
                      voce.height() - 2 * margine, grave ? rosso : ambra);
    pittore->setPen(sfondo.palette.color(scelta ? QPalette::HighlightedText : QPalette::Text));
    pittore->setFont(grassetto(opzioni.font));
    pittore->drawText(dentro(voce), Qt::AlignLeft | Qt::AlignTop, indice.data(datoPeso).toString());
    pittore->setFont(opzioni.font);
    const int altezzaPeso = QFontMetrics(grassetto(opzioni.font)).height();
    pittore->drawText(dentro(voce).adjusted(0, altezzaPeso, 0, 0), Qt::TextWordWrap, testo);
    pittore->restore();
}

QSize DelegatoOsservazioni::sizeHint(const QStyleOptionViewItem& opzioni,
                                     const QModelIndex& indice) const {
    const auto* lista = qobject_cast<const QAbstractItemView*>(opzioni.widget);
    const int larghezza = lista != nullptr ? lista->viewport()->width() : 200;
    const QRect spazio = dentro(QRect(0, 0, larghezza, QWIDGETSIZE_MAX));
    const QRect testo = QFontMetrics(opzioni.font)
                            .boundingRect(QRect(0, 0, spazio.width(), QWIDGETSIZE_MAX),
                                          Qt::TextWordWrap, indice.data().toString());
    return {larghezza,
            QFontMetrics(grassetto(opzioni.font)).height() + testo.height() + 2 * margine};
}

}  // namespace korven::shell
