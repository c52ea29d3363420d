#pragma once

#include <QStyledItemDelegate>

namespace korven::shell {

/// Role of an item that holds the excerpt of a page found.
inline constexpr int datoBrano = Qt::UserRole + 1;

/// Shows a page found: its title in bold letters, below it the excerpt over as many lines as it
/// needs in the width of the list.
class DelegatoTrovate : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
               const QModelIndex& indice) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& opzioni,
                                 const QModelIndex& indice) const override;
};

}  // namespace korven::shell
