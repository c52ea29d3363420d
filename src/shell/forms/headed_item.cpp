#include "shell/forms/headed_item.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr int margine = 6;
constexpr int larghezzaSenzaLista = 200;

QFont grassetto(QFont carattere) {
    carattere.setBold(true);
    return carattere;
}

int altezzaTitolo(const QFont& carattere) { return QFontMetrics(grassetto(carattere)).height(); }

}  // namespace

QRect DelegatoIntestato::dentro(const QRect& voce) const {
    const int sinistra = forma_.margineSinistro > 0 ? margine + forma_.margineSinistro : 0;
    return voce.adjusted(margine + sinistra, margine, -margine, -margine);
}

void DelegatoIntestato::paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
                              const QModelIndex& indice) const {
    QStyleOptionViewItem sfondo = opzioni;
    initStyleOption(&sfondo, indice);
    sfondo.text.clear();
    const QWidget* lista = opzioni.widget;
    lista->style()->drawControl(QStyle::CE_ItemViewItem, &sfondo, pittore, lista);

    const bool scelta = sfondo.state & QStyle::State_Selected;
    pittore->save();
    const QRect spazio = dentro(opzioni.rect);
    if (forma_.margineSinistro > 0)
        orna(*pittore,
             {opzioni.rect.left() + margine, spazio.top(), forma_.margineSinistro, spazio.height()},
             indice, scelta);
    pittore->setPen(sfondo.palette.color(scelta ? QPalette::HighlightedText : QPalette::Text));
    const QFont alto = grassetto(opzioni.font);
    pittore->setFont(alto);
    const QString titolo = indice.data(forma_.titolo).toString();
    pittore->drawText(spazio, Qt::AlignLeft | Qt::AlignTop,
                      QFontMetrics(alto).elidedText(titolo, Qt::ElideRight, spazio.width()));
    pittore->setFont(opzioni.font);
    pittore->drawText(spazio.adjusted(0, altezzaTitolo(opzioni.font), 0, 0), Qt::TextWordWrap,
                      inRighe(indice.data(forma_.testo).toString()));
    pittore->restore();
}

QSize DelegatoIntestato::misuraTesto(const QFont& carattere, int larghezza,
                                     const QModelIndex& indice) const {
    const QFontMetrics misura(carattere);
    const int massima = forma_.righe > 0 ? forma_.righe * misura.height() : QWIDGETSIZE_MAX;
    const QSize testo = misura
                            .boundingRect(QRect(0, 0, larghezza, massima), Qt::TextWordWrap,
                                          inRighe(indice.data(forma_.testo).toString()))
                            .size();
    return {testo.width(), std::min(testo.height(), massima)};
}

QSize DelegatoIntestato::sizeHint(const QStyleOptionViewItem& opzioni,
                                  const QModelIndex& indice) const {
    const auto* lista = qobject_cast<const QAbstractItemView*>(opzioni.widget);
    const int larghezza = lista != nullptr ? lista->viewport()->width() : larghezzaSenzaLista;
    const QRect spazio = dentro(QRect(0, 0, larghezza, QWIDGETSIZE_MAX));
    return {larghezza, altezzaTitolo(opzioni.font) +
                           misuraTesto(opzioni.font, spazio.width(), indice).height() +
                           2 * margine};
}

}  // namespace korven::shell
