#pragma once

#include "shell/companions/companion_window.hpp"

namespace korven::shell {

/// The window that lists the keys of the program, window by window.
class FinestraTasti : public FinestraCompagna {
 public:
    explicit FinestraTasti(QWidget& principale);
};

/// Shows the one window of the main form.
void mostraTasti(QWidget& principale);

}  // namespace korven::shell
