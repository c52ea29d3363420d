#pragma once

#include "shell/forms/headed_item.hpp"

namespace korven::shell {

/// Roles of an item of the list: the word of its weight, and whether it is more than to be looked
/// at. Its text is that of the remark.
inline constexpr int datoPeso = Qt::UserRole + 1;
inline constexpr int datoGrave = Qt::UserRole + 2;

/// Shows a remark: the word of its weight, below it the text, a bar in the colour of the weight
/// beside both.
class DelegatoOsservazioni : public DelegatoIntestato {
 public:
    explicit DelegatoOsservazioni(QObject* padre);

 protected:
    void orna(QPainter& pittore, const QRect& margine, const QModelIndex& indice) const override;
};

}  // namespace korven::shell
