#pragma once

#include <QSettings>
#include <QSize>

class QWidget;

namespace korven::shell {

/// What windows remember of their user: one file for all of them.
[[nodiscard]] QSettings ricordiFinestre();

/// Gives a window the place and size that it had when `ricordaMisure` was last called for a window
/// of its object name, in this run or one before, moved and made smaller as far as its screen asks.
/// @return false when nothing is remembered; the window is then left as it is
bool ripristinaMisure(QWidget& finestra);

/// The largest size of a window on its screen, which leaves room for the frame that the desktop
/// draws around it.
[[nodiscard]] QSize misuraMassima(const QWidget& finestra);

/// The size of a window with that frame.
[[nodiscard]] QSize misuraConCornice(const QWidget& finestra);

/// Gives a window the place and size that are remembered of it, else this size, as far as its
/// screen has room. One that has less height than it asks for is as much wider as a scroll bar is.
/// @return false when nothing is remembered; the place is then left as it is
bool prendiMisura(QWidget& finestra, QSize comoda);

/// Remembers place and size of a window, in the settings of the user.
void ricordaMisure(const QWidget& finestra);

}  // namespace korven::shell
