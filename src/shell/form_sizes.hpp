#pragma once

#include <QSettings>

class QWidget;

namespace korven::shell {

/// What windows remember of their user: one file for all of them.
[[nodiscard]] QSettings ricordiFinestre();

/// Gives a window the place and size that it had when `ricordaMisure` was last called for a window
/// of its object name, in this run or one before.
/// @return false when nothing is remembered; the window is then left as it is
bool ripristinaMisure(QWidget& finestra);

/// Remembers place and size of a window, in the settings of the user.
void ricordaMisure(const QWidget& finestra);

}  // namespace korven::shell
