#pragma once

#include <QStyledItemDelegate>

namespace korven::shell {

/// Paints a bar behind the number of a cell that has one (`datoBarra`), in the colour of the weight
/// of its remark; a cell of weight without a bar has a mark at its left,
/// clear of all its lines.
class DelegatoBarre : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
               const QModelIndex& indice) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& opzioni,
                                 const QModelIndex& indice) const override;
};

}  // namespace korven::shell
