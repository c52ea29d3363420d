#pragma once

#include <QStyledItemDelegate>

namespace korven::shell {

/// Shows an item of a list as a heading in bold letters, on one line, and below it a text over as
/// many lines as it needs in the width of the list.
class DelegatoIntestato : public QStyledItemDelegate {
 public:
    /// Where the parts of an item come from, and the room that they get.
    struct Forma {
        int titolo, testo;        ///< roles of the heading and of the text below it
        int righe = 0;            ///< of the text that are shown at most; 0: all of them
        int margineSinistro = 0;  ///< [px] kept free beside both for `orna`
    };

    explicit DelegatoIntestato(const Forma& forma, QObject* padre = nullptr)
        : QStyledItemDelegate(padre), forma_(forma) {}

    void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
               const QModelIndex& indice) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& opzioni,
                                 const QModelIndex& indice) const override;

 protected:
    /// Paints into the margin at the left.
    /// @param margine  of the item, as high as heading and text
    /// @param scelta   the item is shown as the selected one
    virtual void orna(QPainter& /*pittore*/, const QRect& /*margine*/,
                      const QModelIndex& /*indice*/, bool /*scelta*/) const {}

 private:
    [[nodiscard]] QRect dentro(const QRect& voce) const;
    [[nodiscard]] QSize misuraTesto(const QFont& carattere, int larghezza,
                                    const QModelIndex& indice) const;

    Forma forma_;
};

}  // namespace korven::shell
