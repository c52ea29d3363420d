#pragma once

#include <QStyledItemDelegate>

namespace korven::shell {

/// Roles of an item of the list: the word of its weight, and whether it is more than to be looked
/// at. Its text is that of the remark.
inline constexpr int datoPeso = Qt::UserRole + 1;
inline constexpr int datoGrave = Qt::UserRole + 2;

/// Shows a remark: the word of its weight in bold letters, below it the text over as many lines as
/// it needs in the width of the list.
class DelegatoOsservazioni : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
               const QModelIndex& indice) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& opzioni,
                                 const QModelIndex& indice) const override;
};

}  // namespace korven::shell
