#pragma once

#include "shell/forms/headed_item.hpp"

namespace korven::shell {

/// Role of an item that holds the excerpt of a page found.
inline constexpr int datoBrano = Qt::UserRole + 1;

/// Shows a page found: its title, below it the excerpt.
class DelegatoTrovate : public DelegatoIntestato {
 public:
    explicit DelegatoTrovate(QObject* padre)
        : DelegatoIntestato({.titolo = Qt::DisplayRole, .testo = datoBrano, .righe = 4}, padre) {}
};

}  // namespace korven::shell
