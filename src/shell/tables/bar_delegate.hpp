#pragma once

#include <QStyledItemDelegate>

namespace korven::shell {

/// Paints a bar behind the number of a cell that has one (`datoBarra`), in the colour of the weight
/// of its remark; a cell of weight without a bar has a mark at its left.
class DelegatoBarre : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
               const QModelIndex& indice) const override;

 protected:
    void initStyleOption(QStyleOptionViewItem* opzioni, const QModelIndex& indice) const override;
};

}  // namespace korven::shell
