#pragma once

#include <QDialog>
#include <functional>

namespace korven::shell {

/// The row of buttons `Command1`, which confirms, and `Command2`, which leaves the form without.
/// @param conferma  what the first one does; it closes the form itself
[[nodiscard]] QWidget* pulsantiConferma(QDialog& forma, std::function<void()> conferma);

}  // namespace korven::shell
