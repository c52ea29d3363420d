#pragma once

#include "shell/forms/headed_item.hpp"

namespace korven::shell {

/// Roles of an item of the list: the word of its weight, and the number of its weight
/// (review::Peso). Its text is that of the remark.
inline constexpr int datoPeso = Qt::UserRole + 1;
inline constexpr int datoNumeroPeso = Qt::UserRole + 2;

/// Shows a remark: the word of its weight, below it the text, beside both the sign of the weight in
/// its colour.
class DelegatoOsservazioni : public DelegatoIntestato {
 public:
    explicit DelegatoOsservazioni(QObject* padre);

 protected:
    void orna(QPainter& pittore, const QRect& margine, const QModelIndex& indice,
              bool scelta) const override;
};

}  // namespace korven::shell
