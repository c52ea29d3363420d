#include "shell/help/results.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace korven::shell {

namespace {

constexpr int margine = 6;
constexpr int righe = 4;  // of an excerpt at most

QFont grassetto(QFont carattere) {
    carattere.setBold(true);
    return carattere;
}

QRect sottoIlTitolo(const QRect& voce, const QFont& carattere) {
    return voce.adjusted(margine, margine + QFontMetrics(grassetto(carattere)).height(), -margine,
                         -margine);
}

}  // namespace

void DelegatoTrovate::paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
                            const QModelIndex& indice) const {
    QStyleOptionViewItem sfondo = opzioni;
    initStyleOption(&sfondo, indice);
    const QString titolo = sfondo.text;
    sfondo.text.clear();
    const QWidget* lista = opzioni.widget;
    lista->style()->drawControl(QStyle::CE_ItemViewItem, &sfondo, pittore, lista);

    const bool scelta = sfondo.state & QStyle::State_Selected;
    pittore->save();
    pittore->setPen(sfondo.palette.color(scelta ? QPalette::HighlightedText : QPalette::Text));
    const QRect dentro = opzioni.rect.adjusted(margine, margine, -margine, -margine);
    const QFont alto = grassetto(opzioni.font);
    pittore->setFont(alto);
    pittore->drawText(dentro, Qt::AlignLeft | Qt::AlignTop,
                      QFontMetrics(alto).elidedText(titolo, Qt::ElideRight, dentro.width()));
    pittore->setFont(opzioni.font);
    pittore->drawText(sottoIlTitolo(opzioni.rect, opzioni.font), Qt::TextWordWrap,
                      indice.data(datoBrano).toString());
    pittore->restore();
}

QSize DelegatoTrovate::sizeHint(const QStyleOptionViewItem& opzioni,
                                const QModelIndex& indice) const {
    const auto* lista = qobject_cast<const QAbstractItemView*>(opzioni.widget);
    const int larghezza = lista != nullptr ? lista->viewport()->width() : 200;
    const QFontMetrics misura(opzioni.font);
    const QRect spazio(0, 0, larghezza - 2 * margine, righe * misura.height());
    const QRect brano =
        misura.boundingRect(spazio, Qt::TextWordWrap, indice.data(datoBrano).toString());
    return {larghezza, QFontMetrics(grassetto(opzioni.font)).height() +
                           std::min(brano.height(), spazio.height()) + 2 * margine};
}

}  // namespace korven::shell
