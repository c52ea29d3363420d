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

}  // namespace

// A mark at the left end of a cell would touch the first letter.
void DelegatoBarre::initStyleOption(QStyleOptionViewItem* opzioni,
                                    const QModelIndex& indice) const {
    QStyledItemDelegate::initStyleOption(opzioni, indice);
    const bool soloSegno =
        indice.data(datoPesoCella).isValid() && !indice.data(datoBarra).isValid();
    if (soloSegno) opzioni->text.prepend(QChar::Nbsp);
}

void DelegatoBarre::paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
                          const QModelIndex& indice) const {
    QStyledItemDelegate::paint(pittore, opzioni, indice);
    const QVariant barra = indice.data(datoBarra), peso = indice.data(datoPesoCella);
    if (!barra.isValid() && !peso.isValid()) return;
    const QRect cella = opzioni.rect.adjusted(1, 1, -1, -1);
    const int largo = barra.isValid() ? static_cast<int>(cella.width() * barra.toDouble()) : segno;
    QColor tinta = colore(peso);
    if (!barra.isValid()) tinta.setAlpha(0xFF);
    pittore->fillRect(QRect(cella.left(), cella.top(), largo, cella.height()), tinta);
}

}  // namespace korven::shell
