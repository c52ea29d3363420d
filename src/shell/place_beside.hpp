#pragma once

#include <QList>
#include <QRect>

class QWidget;

namespace korven::shell {

/// Where a window of a size goes beside another: to its right with the heads level, else to its
/// left, else below or above it, as far as the screen has the room. Without any it goes where it
/// covers least of the other: to an end or corner of the screen. Where windows lie in that place
/// already it is moved so that their heads stay in sight.
/// @param altra, misura  with the frames that the desktop draws around them
/// @param presi          corners of the windows that lie beside the other one
/// @return its corner at the left and above; the screen holds the window if it is large enough
[[nodiscard]] QPoint postoAccanto(const QRect& altra, QSize misura, const QRect& schermo,
                                  const QList<QPoint>& presi = {});

/// Where the main form begins: in the corner at the left and above, which leaves the most of the
/// screen in one piece to the windows that open beside it.
[[nodiscard]] QPoint postoPrincipale(const QRect& schermo);

/// Puts a window that is not shown yet beside the one that it belongs to.
/// @return false, the window left where it is, when that one is not seen
bool collocaAccanto(QWidget& finestra);

}  // namespace korven::shell
