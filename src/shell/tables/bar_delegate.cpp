#include "shell/tables/bar_delegate.hpp"

#include <QPainter>

#include "review/remark.hpp"
#include "shell/tables/table_model.hpp"

namespace korven::shell {

namespace {

// Thin enough that the text above them can be read on light and on dark grounds.
constexpr QColor rosso(0xC8, 0x20, 0x20, 0x60);
constexpr QColor ambra(0xE0, 0x98, 0x00, 0x60);
constexpr QColor azzurro(0x30, 0x80, 0xD0, 0x50);
constexpr int segno = 4;  // width of a mark [px]

QColor colore(const QVariant& peso) {
    if (!peso.isValid()) return azzurro;
    return peso.toInt() == static_cast<int>(review::Peso::daVedere) ? ambra : rosso;
}

// What a mark takes from the left of a cell, so that it touches no letter.
int largoSegno(const QModelIndex& indice) {
    const bool soloSegno =
        indice.data(datoPesoCella).isValid() && !indice.data(datoBarra).isValid();
    return soloSegno ? segno : 0;
}

}  // namespace

void DelegatoBarre::paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
                          const QModelIndex& indice) const {
    QStyleOptionViewItem scostate = opzioni;
    scostate.rect.setLeft(opzioni.rect.left() + largoSegno(indice));
    QStyledItemDelegate::paint(pittore, scostate, indice);
    const QVariant barra = indice.data(datoBarra), peso = indice.data(datoPesoCella);
    if (!barra.isValid() && !peso.isValid()) return;
    const QRect cella = opzioni.rect.adjusted(1, 1, -1, -1);
    const int largo = barra.isValid() ? static_cast<int>(cella.width() * barra.toDouble()) : segno;
    QColor tinta = colore(peso);
    if (!barra.isValid()) tinta.setAlpha(0xFF);
    pittore->fillRect(QRect(cella.left(), cella.top(), largo, cella.height()), tinta);
}

QSize DelegatoBarre::sizeHint(const QStyleOptionViewItem& opzioni,
                              const QModelIndex& indice) const {
    const int segno = largoSegno(indice);
    QStyleOptionViewItem strette = opzioni;
    strette.rect.setWidth(opzioni.rect.width() - segno);
    return QStyledItemDelegate::sizeHint(strette, indice) + QSize(segno, 0);
}

}  // namespace korven::shell
