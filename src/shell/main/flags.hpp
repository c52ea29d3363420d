#pragma once

#include <QPixmap>

namespace korven::shell {

/// The flag by which the readers of a language (its code) know it, plainly drawn.
[[nodiscard]] QPixmap bandiera(int codice, QSize misura, qreal densita);

}  // namespace korven::shell
