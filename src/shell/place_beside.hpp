#pragma once

#include <QList>
#include <QRect>

namespace korven::shell {

/// Where a window of a size goes beside another: to its right if the screen has the room, else to
/// its left, else over it at the right end of the screen. Its head is level with that of the other,
/// as far as the screen reaches down. Where windows lie in that place already it is moved so that
/// their heads stay in sight.
/// @param altra, misura  with the frames that the desktop draws around them
/// @param presi          corners of the windows that lie beside the other one
/// @return its corner at the left and above; the screen holds the window if it is large enough
[[nodiscard]] QPoint postoAccanto(const QRect& altra, QSize misura, const QRect& schermo,
                                  const QList<QPoint>& presi = {});

}  // namespace korven::shell
